// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: the start with the session, language and numbers, what is kept of counting.
Column {
    id: root

    readonly property QtObject page: App.settings.general

    SettingsGroup {
        SettingsRow {
            title: qsTr("Open at login")
            note: root.page.launchRefusal !== "" ? root.page.launchRefusal
                                                 : qsTr("Velvetnook waits in the strip when your session begins.")
            noteColor: root.page.launchRefusal !== "" ? Theme.color.danger : Theme.color.text3
            Toggle {
                name: qsTr("Open at login")
                checked: root.page.launchAtLogin
                onToggled: checked => root.page.launchAtLogin = checked
            }
        }
        SettingsRow {
            title: qsTr("Language")
            Segmented {
                name: qsTr("Language")
                options: root.page.languages
                value: root.page.language
                onChosen: value => root.page.language = value
            }
        }
        SettingsRow {
            title: qsTr("Digits")
            Segmented {
                name: qsTr("Digits")
                options: root.page.digitChoices
                value: root.page.digits
                onChosen: value => root.page.digits = value
            }
        }
        SettingsRow {
            title: qsTr("Clock")
            Segmented {
                name: qsTr("Clock")
                options: root.page.clocks
                value: root.page.clock
                onChosen: value => root.page.clock = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Counting")
        SettingsRow {
            title: qsTr("Keep a history")
            note: qsTr("Finished sessions, on this computer only.")
            Toggle {
                name: qsTr("Keep a history")
                checked: root.page.keepsHistory
                onToggled: checked => root.page.keepsHistory = checked
            }
        }
        SettingsRow {
            title: qsTr("Sound at the target")
            note: qsTr("One soft tone when a count is complete.")
            Toggle {
                name: qsTr("Sound at the target")
                checked: root.page.completionSound
                onToggled: checked => root.page.completionSound = checked
            }
        }
    }
}
