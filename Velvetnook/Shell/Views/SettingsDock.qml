// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: the dock at another edge of the screen.
Column {
    id: root

    readonly property QtObject page: App.settings.dock

    SettingsGroup {
        SettingsRow {
            title: qsTr("Dock")
            note: root.page.problem !== "" ? root.page.problem
                : qsTr("Applications, files, links and tools at an edge of the screen, in workspaces.")
            noteColor: root.page.problem !== "" ? Theme.color.warn : Theme.color.text3
            Toggle {
                name: qsTr("Dock")
                checked: root.page.isEnabled
                onToggled: checked => root.page.isEnabled = checked
            }
        }
    }
    SettingsGroup {
        title: qsTr("Place")
        enabled: root.page.isEnabled
        SettingsRow {
            title: qsTr("Edge")
            Segmented {
                name: qsTr("Edge")
                options: root.page.edges
                value: root.page.edge
                onChosen: value => root.page.edge = value
            }
        }
        SettingsRow {
            title: qsTr("Floating")
            note: qsTr("A little away from the edge, round all over.")
            Toggle {
                name: qsTr("Floating")
                checked: root.page.isFloating
                onToggled: checked => root.page.isFloating = checked
            }
        }
        SettingsRow {
            title: qsTr("At rest")
            note: root.page.mode === "edge"
                  ? qsTr("The pointer brings it out where it touches the edge.")
                  : qsTr("It lies above the windows.")
            Segmented {
                name: qsTr("At rest")
                options: root.page.modes
                value: root.page.mode
                onChosen: value => root.page.mode = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Opening")
        enabled: root.page.isEnabled
        SettingsRow {
            title: qsTr("By hovering")
            note: qsTr("After the delay of the notch. Otherwise a click opens a workspace.")
            Toggle {
                name: qsTr("By hovering")
                checked: root.page.opensByHover
                onToggled: checked => root.page.opensByHover = checked
            }
        }
    }
    SettingsGroup {
        title: qsTr("Look")
        enabled: root.page.isEnabled
        SettingsRow {
            title: qsTr("Tab")
            Segmented {
                name: qsTr("Tab")
                options: root.page.iconSizes
                value: root.page.iconSize
                onChosen: value => root.page.iconSize = value
            }
        }
        SettingsRow {
            title: qsTr("Panel")
            Segmented {
                name: qsTr("Panel")
                options: root.page.panelSizes
                value: root.page.panelSize
                onChosen: value => root.page.panelSize = value
            }
        }
        SettingsRow {
            title: qsTr("Surface")
            Segmented {
                name: qsTr("Surface")
                options: root.page.materials
                value: root.page.material
                onChosen: value => root.page.material = value
            }
        }
        SettingsRow {
            title: qsTr("Magnification")
            note: qsTr("What is under the pointer grows a little.")
            Toggle {
                name: qsTr("Magnification")
                checked: root.page.magnifies
                onToggled: checked => root.page.magnifies = checked
            }
        }
    }
}
