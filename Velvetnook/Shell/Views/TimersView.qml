// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The chosen timer large, and all of them as a list.
FocusScope {
    id: root

    readonly property Component footerContent: footerEnd
    readonly property Item mainItem: figure.mainItem
    readonly property bool isSeen: visible && App.panel.isOpen
    property string setId // of the timer that is being set

    function takeKey(key) {
        switch (key) {
        case Qt.Key_Space:
            App.timers.toggle(App.timers.chosenId);
            return true;
        case Qt.Key_Plus:
        case Qt.Key_Equal:
            App.timers.adjust(5);
            return true;
        case Qt.Key_Minus:
            App.timers.adjust(-5);
            return true;
        case Qt.Key_R:
            App.timers.reset(App.timers.chosenId);
            return true;
        case Qt.Key_E:
            root.setId = App.timers.chosenId;
            return true;
        case Qt.Key_N:
            figure.openKinds();
            return true;
        case Qt.Key_Delete:
            App.timers.remove(App.timers.chosenId);
            return true;
        case Qt.Key_Up:
        case Qt.Key_Down:
            App.timers.step(key === Qt.Key_Up ? -1 : 1);
            return true;
        }
        return false;
    }

    KeyLetters { id: letters }

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Timers")
    Keys.onPressed: event => {
        const isPlain = (event.modifiers & ~(Qt.ShiftModifier | Qt.KeypadModifier)) === 0;
        event.accepted = root.setId === "" && isPlain && (letters.isHeld(event) || root.takeKey(letters.keyOf(event)));
    }
    Component.onDestruction: App.timers.watched = false

    Binding {
        target: App.timers
        property: "watched"
        value: root.isSeen
    }
    TimerFigure {
        id: figure

        anchors.left: parent.left
        width: 232
        height: parent.height
        focus: root.setId === ""
    }
    Loader {
        anchors.left: figure.right
        anchors.leftMargin: 28
        anchors.right: parent.right
        height: parent.height
        sourceComponent: root.setId === "" ? list : fields
    }
    Component {
        id: list

        TimerList {
            onSetWanted: id => root.setId = id
        }
    }
    Component {
        id: fields

        TimerFields {
            timerId: root.setId
            focus: true
            onDone: {
                root.setId = "";
                figure.mainItem.forceActiveFocus(Qt.OtherFocusReason);
            }
            Component.onCompleted: forceActiveFocus(Qt.OtherFocusReason)
        }
    }
    Component {
        id: footerEnd

        Item {
            implicitWidth: 600
            implicitHeight: 30
            width: 600
            height: 30
            FooterLink {
                anchors.left: parent.left
                anchors.verticalCenter: parent.verticalCenter
                iconName: "prayer"
                text: qsTr("Focus until prayer…")
                onClicked: {
                    App.prayer.askFocus();
                    App.panel.openTool("prayer");
                }
            }
            KeyHints {
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                keys: [{key: qsTr("Space", "the key"), text: qsTr("start or pause")},
                       {key: "+", text: qsTr("add 5 min")}, {key: "R", text: qsTr("reset")}]
            }
        }
    }
}
