// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What a small card is about.
Item {
    id: root

    property string iconName
    property string text

    implicitHeight: 16

    Icon {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: root.iconName
        size: 15
        color: Theme.color.text3
    }
    Txt {
        anchors.left: sign.right
        anchors.right: parent.right
        anchors.leftMargin: 7
        horizontalAlignment: Text.AlignLeft // mirrored with the layout, also of a Latin name
        role: "label"
        text: root.text
        color: Theme.color.text2
        Accessible.ignored: true
    }
}
