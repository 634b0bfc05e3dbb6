// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What is known of the open note, and what can be done with it.
Item {
    id: root

    readonly property QtObject model: App.notes

    implicitHeight: 30

    Txt {
        visible: root.model.refusal === ""
        anchors.left: parent.left
        anchors.right: actions.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        role: "caption"
        color: Theme.color.text3
        text: root.model.status
    }
    FieldError {
        visible: root.model.refusal !== ""
        anchors.left: parent.left
        anchors.right: actions.left
        anchors.verticalCenter: parent.verticalCenter
        text: root.model.refusal
    }
    Row {
        id: actions

        anchors.right: parent.right
        IconButton {
            size: 30
            iconName: "copy"
            iconSize: 16
            name: qsTr("Copy the text")
            onClicked: {
                root.model.copy();
                App.panel.showMessage(qsTr("Copied"));
            }
        }
        IconButton {
            visible: !root.model.isScratchpad && root.model.isKept
            size: 30
            iconName: "pin"
            iconSize: 16
            ink: root.model.isPinned ? Theme.color.accent : Theme.color.text2
            name: root.model.isPinned ? qsTr("Take from the top") : qsTr("Keep at the top")
            keyHint: "P"
            onClicked: root.model.setPinned(root.model.current, !root.model.isPinned)
        }
        IconButton {
            visible: !root.model.isScratchpad && root.model.isKept
            size: 30
            iconName: "trash"
            iconSize: 16
            name: qsTr("Remove")
            keyHint: qsTr("Del")
            onClicked: root.model.remove(root.model.current)
        }
    }
}
