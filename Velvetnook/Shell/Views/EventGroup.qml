// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What is told when it happens, apart from the gentle reminders.
SettingsGroup {
    id: root

    required property QtObject page

    title: qsTr("When it happens")

    SettingsRow {
        title: qsTr("When a timer ends")
        note: qsTr("A notification, also while the panel is closed.")
        Toggle {
            name: qsTr("When a timer ends")
            checked: root.page.timersAreAnnounced
            onToggled: checked => root.page.setTimersAreAnnounced(checked)
        }
    }
    SettingsRow {
        title: qsTr("Friday invitation")
        note: qsTr("Once each Friday, to send blessings upon the Prophet.")
        Toggle {
            name: qsTr("Friday invitation")
            checked: root.page.fridayEnabled
            onToggled: checked => root.page.setFridayEnabled(checked)
        }
    }
    SettingsRow {
        title: qsTr("On Fridays at")
        enabled: root.page.fridayEnabled
        ValueField {
            width: error === "" ? 72 : 180
            name: qsTr("On Fridays at")
            value: root.page.fridayTime
            onFinished: text => error = root.page.setFridayTime(text)
        }
    }
}
