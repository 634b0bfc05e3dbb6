// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the dock has to say, at the foot of its panel for a few seconds, and the way back.
Rectangle {
    id: root

    visible: App.dock.message !== ""
    implicitHeight: Math.max(40, words.implicitHeight + 16)
    radius: 14
    color: Theme.color.bg2
    z: 10
    Accessible.role: Accessible.AlertMessage
    Accessible.name: App.dock.message

    Shadow { step: "raised" }
    Txt {
        id: words

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.right: undo.visible ? undo.left : parent.right
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        role: "note"
        color: Theme.color.text1
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignLeft
        text: App.dock.message
        Accessible.ignored: true
    }
    GhostButton {
        id: undo

        visible: App.dock.messageAction !== ""
        anchors.right: parent.right
        anchors.rightMargin: 5
        anchors.verticalCenter: parent.verticalCenter
        small: true
        text: App.dock.messageAction
        onClicked: App.dock.takeMessageAction()
    }
}
