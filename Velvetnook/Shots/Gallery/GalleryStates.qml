// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

Grid {
    columns: 2
    padding: 20
    spacing: 20

    Repeater {
        model: [
            {a: "unconfigured", i: "place", m: "Choose a city or use your location.", n: "", p: "Choose a city", s: "Use my location"},
            {a: "loading", i: "", m: "Updating forecast…", n: "", p: "", s: ""},
            {a: "empty", i: "clipboard", m: "Nothing copied yet", n: "What you copy appears here, encrypted.", p: "", s: ""},
            {a: "offline", i: "", m: "Weather did not respond. Try again shortly.", n: "", p: "Try again", s: ""},
            {a: "permissionDenied", i: "place", m: "Allow location access to calculate your prayer times.", n: "You can also set it manually.", p: "Set location…", s: "Open settings"},
            {a: "rateLimited", i: "", m: "The provider is limiting requests. Wait a moment, then refresh.", n: "Refresh returns at 13:16.", p: "Refresh", s: ""},
            {a: "error", i: "", m: "The provider returned an unexpected report. No totals were saved.", n: "", p: "Try again", s: "Connections…"}
        ]
        delegate: Rectangle {
            id: cell

            required property var modelData

            width: 365
            height: 198
            radius: 20
            color: Theme.color.bg0
            border.width: 1
            border.color: Theme.color.line
            AvailabilityView {
                anchors.fill: parent
                availability: cell.modelData.a
                iconName: cell.modelData.i
                message: cell.modelData.m
                note: cell.modelData.n
                primaryText: cell.modelData.p
                secondaryText: cell.modelData.s
            }
        }
    }
}
