// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// Says that something plays. Moves in slow steps, and only where it can be seen.
Item {
    id: root

    property int beat: 0

    readonly property var heights: [[6, 10, 8, 5], [9, 5, 10, 7], [5, 8, 6, 9], [8, 6, 9, 4]]

    implicitWidth: 14
    implicitHeight: 14
    Accessible.ignored: true

    Timer {
        interval: 250
        repeat: true
        running: root.visible && App.strip.canBeSeen && !Theme.reducedMotion
                 && root.Window.visibility !== Window.Hidden
        onTriggered: root.beat = (root.beat + 1) % root.heights.length
    }
    Repeater {
        model: 4
        delegate: Rectangle {
            required property int index

            x: index * 4
            y: 12 - height
            width: index === 3 ? 2 : 2.5
            height: root.heights[root.beat][index]
            radius: 1.2
            color: Theme.onStrip.accent
        }
    }
}
