// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The fourth step: gentle reminders, if they are wanted at all.
Item {
    id: root

    readonly property QtObject reminders: App.reminders

    OnboardingHeading {
        id: heading

        width: parent.width
        title: qsTr("A gentle reminder, if you like")
        note: qsTr("It comes at your pace, inside your hours, and never insists.")
    }
    SettingsGroup {
        id: group

        anchors.top: heading.bottom
        anchors.topMargin: 18
        width: parent.width
        SettingsRow {
            title: qsTr("Gentle reminders")
            note: qsTr("A notification with the pinned phrase.")
            Toggle {
                name: qsTr("Gentle reminders")
                checked: root.reminders.reminderEnabled
                onToggled: checked => root.reminders.setReminderEnabled(checked)
            }
        }
        SettingsRow {
            enabled: root.reminders.reminderEnabled
            title: qsTr("Every")
            Segmented {
                name: qsTr("Every")
                options: [{value: 30, label: qsTr("30 min")}, {value: 60, label: qsTr("1 hour")},
                          {value: 120, label: qsTr("2 hours")}]
                value: root.reminders.interval
                onChosen: value => root.reminders.setInterval(String(value))
            }
        }
        SettingsRow {
            enabled: root.reminders.reminderEnabled
            title: qsTr("Days")
            DayPicker {
                days: root.reminders.days
                onMoved: (day, chosen) => root.reminders.setWeekday(day, chosen)
            }
        }
    }
    Row {
        visible: root.reminders.reminderEnabled
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.top: group.bottom
        anchors.topMargin: 8
        spacing: 7
        Icon {
            y: 2
            name: "bell"
            size: 14
            color: Theme.color.text3
        }
        Txt {
            role: "note"
            color: Theme.color.text3
            text: root.reminders.nextText
        }
    }
}
