// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The timers there are and the kinds that can be started.
ScrollBody {
    id: root

    signal setWanted(string id)

    Accessible.role: Accessible.List
    Accessible.name: qsTr("Timers")
    Column {
        width: root.width
        spacing: 8
        Repeater {
            model: App.timers.rows
            delegate: TimerLine {
                width: root.width
                onSetWanted: id => root.setWanted(id)
            }
        }
    }
}
