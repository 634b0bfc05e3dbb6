// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What one session does.
Item {
    id: root

    required property var session

    implicitHeight: 36
    Accessible.role: Accessible.ListItem
    Accessible.name: session.spoken

    Rectangle {
        id: dot

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: Theme.color[root.session.tone]
    }
    Txt {
        id: title

        anchors.left: dot.right
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 108
        role: "strong"
        text: root.session.title
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Txt {
        anchors.left: title.right
        anchors.leftMargin: 12
        anchors.right: note.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: root.session.what
        color: Theme.color.text2
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Txt {
        id: note

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        role: "note"
        text: root.session.note
        color: Theme.color.text3
        Accessible.ignored: true
    }
}
