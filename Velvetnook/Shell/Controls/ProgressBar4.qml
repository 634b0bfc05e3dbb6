// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A bar of 4 that fills in the reading direction.
Rectangle {
    id: root

    property real value: 0 // 0 to 1
    property color fill: Theme.color.accent
    property string name

    implicitWidth: 120
    implicitHeight: 4
    radius: 2
    color: Theme.color.bg3
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Rectangle {
        anchors.left: parent.left
        width: Math.min(1, Math.max(0, root.value)) * parent.width
        height: parent.height
        radius: 2
        color: root.fill
    }
}
