// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The end of the strip: a value with what belongs to it, and a mark or a ring.
Row {
    id: root

    readonly property bool isNumber: /^[0-9٠-٩,٬:]+$/.test(App.strip.trailing)

    spacing: 9

    Row {
        anchors.verticalCenter: parent.verticalCenter
        visible: App.strip.trailing !== ""

        Digits {
            visible: root.isNumber
            text: root.isNumber ? App.strip.trailing : ""
            role: "strong"
            color: Theme.onStrip[App.strip.trailingTone] ?? Theme.onStrip.text1
        }
        Txt {
            visible: !root.isNumber
            text: root.isNumber ? "" : App.strip.trailing
            role: "strong"
            color: Theme.onStrip[App.strip.trailingTone] ?? Theme.onStrip.text1
        }
        Txt {
            visible: App.strip.trailingNote !== ""
            // Numbers and a stroke alone have no direction of their own.
            text: (LayoutMirroring.enabled ? "\u200F" : "") + App.strip.trailingNote
            role: "strong"
            color: Theme.onStrip.text3
        }
    }
    Icon {
        anchors.verticalCenter: parent.verticalCenter
        visible: name !== ""
        name: App.strip.trailingIcon
        size: 16
        color: Theme.onStrip[App.strip.trailingTone] ?? Theme.onStrip.accent
    }
    StripRing {
        anchors.verticalCenter: parent.verticalCenter
        visible: App.strip.ring >= 0 && !App.strip.ringLeads
    }
}
