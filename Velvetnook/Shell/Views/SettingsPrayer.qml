// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: where and how prayer times are found, with those of today beside every choice.
Column {
    id: root

    readonly property QtObject page: App.settings.prayer

    PrayerPreview { width: parent.width }
    PlaceGroup {}
    SettingsGroup {
        title: qsTr("Calculation")
        SettingsRow {
            title: qsTr("Method")
            note: root.page.methodNote
            Picker {
                name: qsTr("Method")
                options: root.page.methods
                value: root.page.method
                onChosen: value => root.page.method = value
            }
        }
        SettingsRow {
            title: qsTr("Asr")
            note: qsTr("The school whose shadow length begins it.")
            Segmented {
                name: qsTr("Asr")
                options: root.page.asrChoices
                value: root.page.asr
                onChosen: value => root.page.asr = value
            }
        }
        SettingsRow {
            title: qsTr("High latitude")
            note: qsTr("How much of a short night Fajr and Isha may take.")
            Picker {
                name: qsTr("High latitude")
                options: root.page.highLatitudes
                value: root.page.highLatitude
                onChosen: value => root.page.highLatitude = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Adjustments")
        note: qsTr("Minutes added to a time, to agree with your mosque.")
        Repeater {
            model: root.page.adjusted
            delegate: SettingsRow {
                id: line

                required property var modelData

                title: modelData.label
                Stepper {
                    name: line.title
                    from: -60
                    to: 60
                    value: root.page.minutes[line.modelData.value]
                    text: root.page.minuteTexts[line.modelData.value]
                    onMoved: value => root.page.setAdjustment(line.modelData.value, value)
                }
            }
        }
        SettingsRow {
            title: qsTr("Islamic date")
            note: qsTr("Today: %1").arg(root.page.hijriDate)
            Stepper {
                name: qsTr("Islamic date")
                from: -2
                to: 2
                value: root.page.hijriOffset
                text: root.page.hijriOffsetText
                onMoved: value => root.page.hijriOffset = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Telling you")
        SettingsRow {
            title: qsTr("Notification at each prayer")
            Toggle {
                name: qsTr("Notification at each prayer")
                checked: root.page.notifies
                onToggled: checked => root.page.notifies = checked
            }
        }
        SettingsRow {
            title: qsTr("Sound with the notification")
            Toggle {
                name: qsTr("Sound with the notification")
                enabled: root.page.notifies
                checked: root.page.sounds
                onToggled: checked => root.page.sounds = checked
            }
        }
        SettingsRow {
            title: qsTr("In the strip in the last hour")
            note: qsTr("The next prayer stands in the strip when it is near.")
            Toggle {
                name: qsTr("In the strip in the last hour")
                checked: root.page.showsInStrip
                onToggled: checked => root.page.showsInStrip = checked
            }
        }
    }
}
