// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A line to type. A refused text stays as it is, and the reason stands below it.
FocusScope {
    id: root

    property alias text: input.text
    property string label
    property string hint
    property color hintColor: Theme.color.text3
    property string error
    property string iconName
    property string name: label !== "" ? label : hint // for a screen reader
    property int fieldHeight: 34
    property alias readOnly: input.readOnly
    property alias validator: input.validator
    property alias inputMethodHints: input.inputMethodHints
    property alias maximumLength: input.maximumLength
    property alias echoMode: input.echoMode
    property alias input: input
    property bool ringed: input.activeFocus
    property bool lit: input.hovered

    signal accepted
    signal edited(string text)

    readonly property color outline: error !== "" ? Theme.color.danger
                                   : ringed ? Theme.color.accent
                                   : lit ? Theme.color.line2 : Theme.color.line

    function selectAll() { input.selectAll(); }
    function clear() { input.clear(); }

    implicitWidth: 200
    implicitHeight: (label === "" ? 0 : caption.implicitHeight + 6) + fieldHeight
                    + (error === "" ? 0 : reason.implicitHeight + 6)

    Column {
        width: parent.width
        spacing: 6

        Txt {
            id: caption

            visible: text !== ""
            width: parent.width
            text: root.label
            role: "label"
            color: Theme.color.text2
        }
        Rectangle {
            width: parent.width
            height: root.fieldHeight
            radius: Theme.radius.field
            color: Theme.color.bg1
            border.width: root.error !== "" || root.ringed ? Theme.outline : 1
            border.color: root.outline

            Icon {
                id: sign

                visible: root.iconName !== ""
                anchors.left: parent.left
                anchors.leftMargin: 11
                anchors.verticalCenter: parent.verticalCenter
                name: root.iconName
                size: 16
                color: Theme.color.text3
            }
            T.TextField {
                id: input

                anchors.fill: parent
                anchors.leftMargin: root.iconName === "" ? 0 : 24
                leftPadding: 11
                rightPadding: 11
                focus: true
                hoverEnabled: true
                selectByMouse: true
                verticalAlignment: TextInput.AlignVCenter
                // Of one face: a line of two is as high as both, and its letters leave the middle.
                font.family: /[؀-ۿ]/.test(text) ? "Noto Sans Arabic" : Theme.familyOf("body")
                font.pixelSize: Theme.type.body.pixelSize
                font.weight: Theme.weightOf("body")
                color: enabled ? Theme.color.text1 : Theme.color.text4
                selectionColor: Theme.color.soft2
                selectedTextColor: Theme.color.text1
                Accessible.name: root.name
                Accessible.description: root.error
                onAccepted: root.accepted()
                onTextEdited: root.edited(text)
                // Steady: a caret that blinks would wake the machine twice a second.
                cursorDelegate: Rectangle {
                    visible: input.activeFocus && !input.readOnly
                    width: 2
                    radius: 1
                    color: Theme.color.accent
                }

                Txt {
                    visible: input.text === "" && input.preeditText === ""
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.margins: 11
                    anchors.verticalCenter: parent.verticalCenter
                    text: root.hint
                    color: root.enabled ? root.hintColor : Theme.color.text4
                    Accessible.ignored: true
                }
            }
        }
        FieldError {
            id: reason

            visible: root.error !== ""
            width: parent.width
            text: root.error
        }
    }
}
