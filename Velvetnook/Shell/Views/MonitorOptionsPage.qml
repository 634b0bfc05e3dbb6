// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What is recorded, and what is worth an alert.
Item {
    id: root

    readonly property QtObject options: App.monitor.options
    readonly property Item mainItem: history

    MonitorHead {
        width: parent.width
        title: qsTr("Recording and alerts")
        note: root.options.problem
    }
    ScrollBody {
        y: 38
        width: parent.width
        height: parent.height - 38

        Column {
            width: parent.width
            spacing: 10

            SettingsGroup {
                SettingsRow {
                    title: qsTr("History")
                    note: qsTr("A figure a minute, on this computer only; sampled every 10 seconds.")
                    Toggle {
                        id: history

                        name: qsTr("History")
                        checked: root.options.history
                        onToggled: checked => root.options.history = checked
                    }
                }
                SettingsRow {
                    visible: root.options.history
                    title: qsTr("Paused")
                    Toggle {
                        name: qsTr("Paused")
                        checked: root.options.isPaused
                        onToggled: checked => root.options.isPaused = checked
                    }
                }
                SettingsRow {
                    title: qsTr("Kept for")
                    Segmented {
                        name: qsTr("Kept for")
                        options: [{value: 1, label: qsTr("1 day")}, {value: 7, label: qsTr("7 days")},
                                  {value: 30, label: qsTr("30 days")}]
                        value: root.options.retention
                        onChosen: value => root.options.retention = value
                    }
                    DangerButton {
                        small: true
                        text: qsTr("Clear…")
                        onClicked: App.monitor.askToClear()
                    }
                }
            }
            MonitorAlertOptions { options: root.options }
        }
    }
}
