// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// Where one is among a few steps.
Row {
    id: root

    property int step
    property int count

    spacing: 7
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Step %1 of %2").arg(App.format.number(step + 1)).arg(App.format.number(count))

    Repeater {
        model: root.count
        delegate: Rectangle {
            required property int index

            width: index === root.step ? 22 : 7
            height: 7
            radius: 3.5
            antialiasing: true
            color: index <= root.step ? Theme.color.accent : Theme.color.bg3
            opacity: index < root.step ? 0.55 : 1
        }
    }
}
