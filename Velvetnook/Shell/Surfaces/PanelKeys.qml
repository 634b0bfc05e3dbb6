// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// The keys that work anywhere in the panel, also while a text is typed.
Item {
    id: root

    signal areaWanted

    Instantiator {
        model: 9
        delegate: Shortcut {
            required property int index

            enabled: root.enabled
            sequence: "Ctrl+" + (index + 1)
            onActivated: App.panel.openTab(index)
        }
    }
    Shortcut {
        enabled: root.enabled
        sequence: "Ctrl+Tab"
        onActivated: App.panel.stepTab(1)
    }
    Shortcut {
        enabled: root.enabled
        sequences: ["Ctrl+Shift+Tab", "Ctrl+Shift+Backtab"]
        onActivated: App.panel.stepTab(-1)
    }
    Shortcut {
        enabled: root.enabled
        sequence: "Ctrl+K"
        onActivated: App.palette.openWanted()
    }
    Shortcut {
        enabled: root.enabled
        sequence: "Ctrl+,"
        onActivated: App.panel.openTool("settings")
    }
    Shortcut {
        enabled: root.enabled
        sequence: "F6"
        onActivated: root.areaWanted()
    }
}
