// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Finished sessions, the newest first, day by day. Only what shows is made.
// Not bound: a list of Qt 6.4 cannot make the heads of its sections from a bound component.
ListView {
    id: root

    model: App.history.sessions
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    activeFocusOnTab: true
    keyNavigationEnabled: false
    currentIndex: -1
    section.property: "day"
    section.delegate: Txt {
        required property string section

        width: root.width
        height: 26
        role: "caption"
        text: section
        color: Theme.color.text3
    }
    delegate: HistoryRow {
        width: root.width
    }
    Keys.onUpPressed: flick(0, 600)
    Keys.onDownPressed: flick(0, -600)
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Finished sessions")
}
