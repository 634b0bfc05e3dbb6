// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Whether the time is counted, when a pause begins, and what is left out.
ScrollBody {
    id: root

    SettingsGroup {
        width: root.width

        SettingsRow {
            title: qsTr("Count the time at the screen")
            note: qsTr("Known only to this computer; kept for 92 days and in no backup.")
            Toggle {
                name: qsTr("Count the time at the screen")
                checked: App.screenTime.isOn
                onToggled: checked => App.screenTime.isOn = checked
            }
        }
        SettingsRow {
            title: qsTr("A pause begins after")
            note: qsTr("without a key or the pointer")
            Stepper {
                name: qsTr("A pause begins after")
                from: 1
                to: 60
                value: App.screenTime.idleMinutes
                text: App.screenTime.idleText
                onMoved: value => App.screenTime.idleMinutes = value
            }
        }
        Repeater {
            model: App.screenTime.excluded
            delegate: SettingsRow {
                id: left

                required property string modelData

                title: modelData
                note: qsTr("is not counted")
                GhostButton {
                    small: true
                    text: qsTr("Count again")
                    onClicked: App.screenTime.include(left.modelData)
                }
            }
        }
    }
}
