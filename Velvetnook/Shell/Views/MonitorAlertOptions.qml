// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// When an application is worth an alert.
SettingsGroup {
    id: root

    required property QtObject options

    SettingsRow {
        title: qsTr("Alerts")
        note: qsTr("When one application keeps the machine busy or its memory keeps growing.")
        Toggle {
            name: qsTr("Alerts")
            checked: root.options.alerts
            onToggled: checked => root.options.alerts = checked
        }
    }
    SettingsRow {
        visible: root.options.alerts
        title: qsTr("Processor above")
        note: qsTr("of one core, for so long")
        Stepper {
            name: qsTr("Processor above")
            from: 10
            to: 1600
            step: 10
            value: root.options.cpu
            text: root.options.cpuText
            onMoved: value => root.options.cpu = value
        }
        Stepper {
            name: qsTr("For so long")
            from: 1
            to: 60
            value: root.options.minutes
            text: root.options.minutesText
            onMoved: value => root.options.minutes = value
        }
    }
    SettingsRow {
        visible: root.options.alerts
        title: qsTr("Memory grown in an hour by")
        Stepper {
            name: qsTr("Memory grown in an hour by")
            from: 1
            to: 64
            value: root.options.growth
            text: root.options.growthText
            onMoved: value => root.options.growth = value
        }
    }
    SettingsRow {
        visible: root.options.alerts
        title: qsTr("Disk busier than")
        note: qsTr("for five minutes")
        Stepper {
            name: qsTr("Disk busier than")
            from: 0
            to: 1000
            step: 5
            value: root.options.disk
            text: root.options.diskText
            onMoved: value => root.options.disk = value
        }
    }
    Repeater {
        model: root.options.alerts ? root.options.excluded : []
        delegate: SettingsRow {
            id: excluded

            required property var modelData

            title: modelData.title
            note: qsTr("raises no alerts")
            GhostButton {
                small: true
                text: qsTr("Allow alerts")
                onClicked: root.options.setExcluded(excluded.modelData.id, false)
            }
        }
    }
}
