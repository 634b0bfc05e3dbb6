// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One side of a conversion: a number, to be typed or only read, and its unit.
FocusScope {
    id: root

    property string label
    property string text
    property string refusal // instead of the number
    property bool editable: false
    property string unit
    property var units: []

    signal edited(string text)
    signal accepted
    signal unitChosen(string unit)

    // A number that is too long drops in size, as it must stay readable to its last digit.
    readonly property real room: width - 32
    readonly property real fitted: Math.max(15, Math.min(34, Math.floor(34 * room / Math.max(1, metrics.width + 8))))

    implicitHeight: 112
    height: implicitHeight

    TextMetrics {
        id: metrics

        font: Theme.type.numeral
        text: root.text
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.radius.cardLarge
        color: Theme.color.bg1
        border.width: input.activeFocus ? 1.5 : 0
        border.color: Theme.color.accent
    }
    Txt {
        x: 16
        y: 14
        width: root.room
        role: "label"
        color: Theme.color.text3
        text: root.label
    }
    T.TextField {
        id: input

        visible: root.editable
        focus: root.editable
        x: 16
        // Higher than its letters: a line of Arabic digits that did not fit would be scrolled.
        y: 20
        width: root.room
        height: 72
        clip: true
        verticalAlignment: TextInput.AlignVCenter
        horizontalAlignment: TextInput.AlignLeft // mirrored with the layout
        selectByMouse: true
        // Of one face: a line of two is as high as both, and its letters leave the middle.
        font.family: /[٠-٩]/.test(text) ? "Noto Sans Arabic" : Theme.familyOf("numeral")
        font.weight: Theme.weightOf("numeral")
        font.pixelSize: root.fitted
        color: Theme.color.text1
        selectionColor: Theme.color.soft2
        selectedTextColor: Theme.color.text1
        inputMethodHints: Qt.ImhNoPredictiveText
        Accessible.name: root.label
        onTextEdited: root.edited(text)
        onAccepted: root.accepted()
        cursorDelegate: Item {
            visible: input.activeFocus
            width: 2

            // As high as the digits, whatever line their face has.
            Rectangle {
                y: input.baselineOffset - input.cursorRectangle.y - root.fitted
                width: 2
                height: root.fitted * 1.25
                radius: 1
                color: Theme.color.accent
            }
        }
        Binding {
            target: input
            property: "text"
            value: root.text
            when: root.editable
            restoreMode: Binding.RestoreNone
        }
    }
    Txt {
        visible: !root.editable && root.refusal === ""
        x: 16
        y: 34
        width: root.room
        height: 44
        role: "numeral"
        pixelSize: root.fitted
        lineHeight: 44
        horizontalAlignment: Text.AlignLeft
        color: root.text === "" ? Theme.color.text3 : Theme.color.text1
        text: root.text === "" ? "—" : root.text
        Accessible.name: root.text === "" ? qsTr("No result") : root.text
    }
    FieldError {
        visible: root.refusal !== ""
        x: 16
        y: 40
        width: root.room
        text: root.refusal
    }
    UnitButton {
        x: root.LayoutMirroring.enabled ? root.width - width - 10 : 10
        y: 78
        unit: root.unit
        units: root.units
        name: root.label
        onChosen: unit => root.unitChosen(unit)
    }
}
