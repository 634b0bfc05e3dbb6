// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the forecast will stand, while the first one comes. Nothing for what is there at once.
Item {
    id: root

    opacity: 0
    Accessible.role: Accessible.Indicator
    Accessible.name: App.weather.message

    Timer {
        interval: 200
        running: root.visible && root.Window.visibility !== Window.Hidden
        onTriggered: root.opacity = 1
    }
    Repeater {
        model: [{x: 0, y: 8, w: 96, h: 16}, {x: 0, y: 40, w: 130, h: 58},
                {x: 0, y: 112, w: 110, h: 14}, {x: 226, y: 40, w: 372, h: 64},
                {x: 226, y: 124, w: 372, h: 12}]
        delegate: Rectangle {
            required property var modelData

            x: LayoutMirroring.enabled ? root.width - modelData.x - width : modelData.x
            y: modelData.y
            width: modelData.w
            height: modelData.h
            radius: Theme.radius.key
            color: Theme.color.bg2
        }
    }
    Repeater {
        model: 3
        delegate: Rectangle {
            required property int index

            x: index * ((root.width - 20) / 3 + 10)
            y: 166
            width: (root.width - 20) / 3
            height: 52
            radius: 14
            color: Theme.color.bg2
        }
    }
    Spinner {
        anchors.right: parent.right
        y: 6
    }
}
