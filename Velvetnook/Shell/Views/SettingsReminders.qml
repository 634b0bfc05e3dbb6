// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: the gentle reminders. A value that is refused stays in its field.
Column {
    id: root

    readonly property QtObject page: App.reminders

    SettingsGroup {
        SettingsRow {
            title: qsTr("Gentle reminders")
            note: qsTr("A notification with the pinned phrase, inside the hours you choose.")
            Toggle {
                name: qsTr("Gentle reminders")
                checked: root.page.reminderEnabled
                onToggled: checked => root.page.setReminderEnabled(checked)
            }
        }
        SettingsRow {
            title: qsTr("Every")
            note: qsTr("1 to 1440 minutes")
            ValueField {
                width: error === "" ? 72 : 220
                name: qsTr("Minutes between reminders")
                value: root.page.intervalDigits
                onFinished: text => error = root.page.setInterval(text)
            }
            Txt {
                y: 7
                text: qsTr("minutes")
                color: Theme.color.text3
            }
        }
        SettingsRow {
            title: qsTr("Active hours")
            note: qsTr("Across midnight is fine: the evening’s day decides.")
            ValueField {
                width: error === "" ? 72 : 180
                name: qsTr("Active from")
                value: root.page.activeStart
                onFinished: text => error = root.page.setActiveStart(text)
            }
            Txt {
                y: 7
                text: qsTr("to")
                color: Theme.color.text3
            }
            ValueField {
                width: error === "" ? 72 : 180
                name: qsTr("Active until")
                value: root.page.activeEnd
                onFinished: text => error = root.page.setActiveEnd(text)
            }
        }
        SettingsRow {
            title: qsTr("Days")
            DayPicker {
                days: root.page.days
                onMoved: (day, chosen) => root.page.setWeekday(day, chosen)
            }
        }
        SettingsRow {
            title: qsTr("When the phrase is already on screen")
            Segmented {
                name: qsTr("When the phrase is already on screen")
                options: [{value: "nothing", label: qsTr("Stay quiet")},
                          {value: "emphasis", label: qsTr("Emphasise it")}]
                value: root.page.pinnedReminder
                onChosen: value => root.page.setPinnedReminder(value)
            }
        }
        SettingsRow {
            title: qsTr("Sound")
            Toggle {
                name: qsTr("Sound")
                checked: root.page.soundEnabled && root.page.reminderSound
                onToggled: checked => {
                    root.page.setReminderSound(checked);
                    if (checked) {
                        root.page.setSoundEnabled(true);
                    }
                }
            }
        }
    }
    Row {
        anchors.left: parent.left
        anchors.leftMargin: 4
        topPadding: 8
        spacing: 7
        Icon {
            y: 2
            name: root.page.isPaused ? "bell-off" : "bell"
            size: 14
            color: Theme.color.text3
        }
        Txt {
            role: "note"
            color: Theme.color.text3
            text: root.page.isPaused ? root.page.pausedText : root.page.nextText
        }
    }
    TryGroup { page: root.page }
    EventGroup { page: root.page }
}
