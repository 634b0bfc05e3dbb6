// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One timer of the list, or a kind that waits to be started.
T.ItemDelegate {
    id: root

    required property string timerId
    required property string iconName
    required property string title
    required property string note
    required property bool isRunning
    required property bool isChosen
    required property bool canReset
    required property bool canRemove
    required property bool canSet

    signal setWanted(string id)

    implicitHeight: 49
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    onClicked: App.timers.choose(timerId)
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onMenuPressed: menu.popup(40, 40)
    Accessible.name: title + ", " + note
    Accessible.onPressAction: clicked()
    Accessible.selected: isChosen

    background: Rectangle {
        radius: 14
        color: root.isChosen ? Theme.color.bg1
             : root.hovered ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
        FocusRing {
            shown: root.visualFocus
            corner: 14
        }
    }
    contentItem: Item {
        Icon {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            name: root.iconName
            size: 19
            color: root.isChosen ? Theme.color.accent : Theme.color.text3
        }
        Column {
            anchors.left: sign.right
            anchors.leftMargin: 12
            anchors.right: tools.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignLeft
                role: "strong"
                lineHeight: 18
                text: root.title
                Accessible.ignored: true
            }
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignLeft
                role: "note"
                lineHeight: 16
                color: Theme.color.text3
                text: root.note
                Accessible.ignored: true
            }
        }
        Row {
            id: tools

            anchors.right: parent.right
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            spacing: 12
            GhostButton {
                visible: root.canSet && !root.canReset
                small: true
                ink: Theme.color.text3
                text: qsTr("Set…")
                onClicked: root.setWanted(root.timerId)
            }
            IconButton {
                visible: root.canReset
                size: 30
                iconName: "reset"
                name: qsTr("Reset %1").arg(root.title)
                keyHint: "R"
                onClicked: App.timers.reset(root.timerId)
            }
            IconButton {
                size: 30
                filled: true
                iconName: root.isRunning ? "pause" : "play"
                iconSize: 15
                name: (root.isRunning ? qsTr("Pause %1") : qsTr("Start %1")).arg(root.title)
                onClicked: {
                    App.timers.choose(root.timerId);
                    App.timers.toggle(root.timerId);
                }
            }
        }
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: point => menu.popup(point.position.x, point.position.y)
    }
    PopupMenu {
        id: menu

        items: [{text: root.isRunning ? qsTr("Pause") : qsTr("Start"),
                 iconName: root.isRunning ? "pause" : "play"},
                {text: qsTr("Set…"), iconName: "settings", key: "E",
                 enabled: root.canSet || root.canRemove},
                {text: qsTr("Reset"), iconName: "reset", key: "R", enabled: root.canReset},
                {text: qsTr("Remove"), iconName: "trash", key: qsTr("Del", "the key"),
                 enabled: root.canRemove}]
        onChosen: index => {
            if (index === 0) {
                App.timers.toggle(root.timerId);
            } else if (index === 1) {
                root.setWanted(root.timerId);
            } else if (index === 2) {
                App.timers.reset(root.timerId);
            } else {
                App.timers.remove(root.timerId);
            }
        }
    }
}
