// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A question over its surface. The safe answer holds the focus and is what Escape means.
// The surface is the nearest ancestor named "surface", else the outermost item.
FocusScope {
    id: root

    property string title
    property string body
    property string acceptText: qsTr("OK")
    property string cancelText: qsTr("Cancel")
    property string extraText // a third way, between the two
    property bool dangerous: false
    property real corner: 0 // of the surface, for the veil

    signal accepted
    signal rejected
    signal extra

    property Item restoreFocus: null
    property bool isAsking: false // the panel stays open meanwhile

    function surface() {
        let item = parent;
        while (item.objectName !== "surface" && item.parent && item.parent.parent) {
            item = item.parent;
        }
        return item;
    }
    function open() {
        restoreFocus = Window.activeFocusItem;
        parent = surface();
        visible = true;
        isAsking = true;
        if (parent.dialogOpened) {
            parent.dialogOpened();
        }
        (dangerous ? cancel : accept).forceActiveFocus(Qt.PopupFocusReason);
    }
    function close() {
        visible = false;
        leave();
        if (restoreFocus) {
            restoreFocus.forceActiveFocus(Qt.PopupFocusReason);
        }
        restoreFocus = null;
    }
    function leave() {
        if (isAsking && parent && parent.dialogClosed) {
            parent.dialogClosed();
        }
        isAsking = false;
    }
    function answer(way) {
        close();
        way();
    }

    Component.onDestruction: leave() // its view may go while it asks

    anchors.fill: parent
    z: 100
    visible: false
    Keys.onEscapePressed: answer(rejected)
    // Nothing behind the question hears a key.
    Keys.onPressed: event => event.accepted = true
    Accessible.role: Accessible.Dialog
    Accessible.name: title
    Accessible.description: body

    Rectangle {
        anchors.fill: parent
        radius: root.corner
        color: Qt.alpha(Theme.color.bg0, 0.72)
        MouseArea {
            anchors.fill: parent
            hoverEnabled: true
            acceptedButtons: Qt.AllButtons
            onWheel: wheel => wheel.accepted = true
        }
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(Math.max(372, answers.wanted + 40), parent.width - 40)
        height: column.implicitHeight + 40
        radius: 20
        color: Theme.color.bg2
        Shadow { step: "raised" }

        Column {
            id: column

            x: 20
            y: 20
            width: parent.width - 40
            Txt {
                width: parent.width
                text: root.title
                role: "heading"
                wrapMode: Text.Wrap
            }
            Item { width: 1; height: 6 }
            Txt {
                visible: text !== ""
                width: parent.width
                text: root.body
                color: Theme.color.text2
                wrapMode: Text.Wrap
            }
            Item { width: 1; height: 18 }
            Item {
                id: answers

                readonly property real wanted: choices.implicitWidth
                                             + (root.dangerous ? danger.implicitWidth + 8 : 0)

                width: parent.width
                height: 36

                DangerButton {
                    id: danger

                    visible: root.dangerous
                    anchors.left: parent.left
                    text: root.acceptText
                    onClicked: root.answer(root.accepted)
                    KeyNavigation.tab: extraButton.visible ? extraButton : cancel
                    KeyNavigation.backtab: cancel
                }
                Row {
                    id: choices

                    anchors.right: parent.right
                    spacing: 8
                    SecondaryButton {
                        id: extraButton

                        visible: root.extraText !== ""
                        text: root.extraText
                        fill: Theme.color.bg3
                        fillHover: Theme.color.line2
                        onClicked: root.answer(root.extra)
                        KeyNavigation.tab: cancel
                    }
                    ButtonBase {
                        id: cancel

                        text: root.cancelText
                        fill: root.dangerous ? Theme.color.accent : Theme.color.bg3
                        fillHover: root.dangerous ? Theme.color.accentHover : Theme.color.line2
                        fillPressed: root.dangerous ? Theme.color.accentPressed : Theme.color.line2
                        ink: root.dangerous ? Theme.color.onAccent : Theme.color.text1
                        weight: root.dangerous ? Font.DemiBold : Font.Medium
                        ringed: activeFocus
                        onClicked: root.answer(root.rejected)
                        KeyNavigation.tab: root.dangerous ? danger : accept
                    }
                    PrimaryButton {
                        id: accept

                        visible: !root.dangerous
                        text: root.acceptText
                        ringed: activeFocus
                        onClicked: root.answer(root.accepted)
                        KeyNavigation.tab: extraButton.visible ? extraButton : cancel
                    }
                }
            }
        }
    }
}
