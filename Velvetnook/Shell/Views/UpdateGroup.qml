// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Whether there is a newer version, and the consent to ask for one. Nothing is installed here.
SettingsGroup {
    id: root

    readonly property var updates: App.settings.about.updates

    title: qsTr("Updates")

    SettingsRow {
        title: root.updates.channel
        note: root.updates.note
        noteColor: root.updates.isRefused ? Theme.color.danger : Theme.color.text3
        SecondaryButton {
            visible: root.updates.isPossible
            small: true
            enabled: root.updates.canAsk
            busy: root.updates.isBusy
            text: qsTr("Look now")
            onClicked: root.updates.ask()
        }
    }
    SettingsRow {
        visible: root.updates.isPossible
        title: qsTr("Look for a newer version")
        note: qsTr("Asks the maker’s server once a day. Nothing but the version of this program is told to it.")
        Toggle {
            name: qsTr("Look for a newer version")
            checked: root.updates.isAllowed
            onToggled: checked => root.updates.isAllowed = checked
        }
    }
    UpdateOffer {
        visible: root.updates.version !== ""
    }
}
