// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The picture of a key.
Rectangle {
    id: root

    property alias text: label.text
    property color ink: Theme.color.text2

    implicitWidth: Math.max(19, label.implicitWidth + 10)
    implicitHeight: 19
    radius: Theme.radius.key
    color: "transparent"
    border.width: 1
    border.color: Theme.color.line2
    Accessible.ignored: true

    Txt {
        id: label

        anchors.centerIn: parent
        role: "caption"
        color: root.ink
        Accessible.ignored: true
    }
}
