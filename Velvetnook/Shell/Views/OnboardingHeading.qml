// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What a step is about.
Column {
    id: root

    property string title
    property string note
    property bool centred: false

    spacing: 6

    Txt {
        width: parent.width
        role: "title"
        pixelSize: root.centred ? 28 : 26
        horizontalAlignment: root.centred ? Text.AlignHCenter : Text.AlignLeft
        text: root.title
        Accessible.role: Accessible.Heading
    }
    Txt {
        anchors.horizontalCenter: parent.horizontalCenter
        width: root.centred ? Math.min(460, parent.width) : parent.width
        pixelSize: 14
        color: Theme.color.text2
        horizontalAlignment: root.centred ? Text.AlignHCenter : Text.AlignLeft
        wrapMode: Text.Wrap
        text: root.note
    }
}
