// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the monitor is to be had until the panel shows it.
Card {
    padding: 4

    AvailabilityView {
        anchors.fill: parent
        availability: "unconfigured"
        iconName: "stats"
        message: qsTr("Monitor")
        note: qsTr("For now, “kest monitor” shows it in the terminal.")
    }
}
