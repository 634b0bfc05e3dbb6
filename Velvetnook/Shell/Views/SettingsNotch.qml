// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: what the strip shows, how it opens, and where it keeps away.
Column {
    id: root

    readonly property QtObject page: App.settings.notch

    SettingsGroup {
        SettingsRow {
            title: qsTr("Phrase in the strip")
            note: qsTr("The strip shows what you pinned while nothing else is due.")
            Toggle {
                name: qsTr("Phrase in the strip")
                checked: root.page.pinEnabled
                onToggled: checked => root.page.pinEnabled = checked
            }
        }
        SettingsRow {
            title: qsTr("What it rests on")
            enabled: root.page.pinEnabled
            Segmented {
                name: qsTr("What it rests on")
                options: root.page.pinModes
                value: root.page.pinMode
                onChosen: value => root.page.pinMode = value
            }
        }
        SettingsRow {
            visible: root.page.pinMode === "favourites"
            title: qsTr("A new favourite every")
            note: qsTr("1 to 1440 minutes")
            enabled: root.page.pinEnabled
            ValueField {
                width: error === "" ? 72 : 220
                name: qsTr("Minutes between favourites")
                value: App.reminders.rotationDigits
                onFinished: text => error = App.reminders.setRotationMinutes(text)
            }
            Txt {
                y: 7
                text: qsTr("minutes")
                color: Theme.color.text3
            }
        }
        SettingsRow {
            title: qsTr("Shown as")
            enabled: root.page.pinEnabled
            Segmented {
                name: qsTr("Shown as")
                options: root.page.pinDisplays
                value: root.page.pinDisplay
                onChosen: value => root.page.pinDisplay = value
            }
        }
        SettingsRow {
            title: qsTr("Width")
            Segmented {
                name: qsTr("Width")
                options: root.page.pinSizes
                value: root.page.pinSize
                onChosen: value => root.page.pinSize = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Opening")
        SettingsRow {
            title: qsTr("Delay")
            note: qsTr("How long the pointer rests before the panel opens.")
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                width: 44
                horizontalAlignment: Text.AlignRight
                role: "strong"
                text: root.page.openDelayText
            }
            ValueSlider {
                name: qsTr("Delay")
                valueText: root.page.openDelayText
                from: 0.1
                to: 1.5
                step: 0.05
                value: root.page.openDelay
                onMoved: value => root.page.openDelay = value
            }
        }
        SettingsRow {
            title: qsTr("Hidden at rest")
            note: qsTr("Nothing is drawn until the pointer touches the screen’s edge.")
            Toggle {
                name: qsTr("Hidden at rest")
                checked: root.page.hiddenAtRest
                onToggled: checked => root.page.hiddenAtRest = checked
            }
        }
        SettingsRow {
            title: qsTr("Screen")
            Picker {
                name: qsTr("Screen")
                options: root.page.screens
                value: root.page.screen
                onChosen: value => root.page.screen = value
            }
        }
    }
    SettingsGroup {
        title: qsTr("Volume and brightness")
        SettingsRow {
            title: qsTr("Show the level in the strip")
            note: qsTr("For a moment when a key changes it. Turn off the one of your desktop, if it shows its own.")
            Toggle {
                name: qsTr("Show the level in the strip")
                checked: root.page.overlay
                onToggled: checked => root.page.overlay = checked
            }
        }
    }
    ExclusionGroup { page: root.page }
}
