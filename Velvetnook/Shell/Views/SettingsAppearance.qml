// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: how the surfaces look, and how a phrase reads.
Column {
    id: root

    readonly property QtObject page: App.settings.appearance
    readonly property var signs: ({dark: "moon", light: "sun"})

    SettingsGroup {
        SettingsRow {
            title: qsTr("Theme")
            note: qsTr("The notch strip is always black, like the edge it hangs from.")
            Segmented {
                name: qsTr("Theme")
                options: root.page.themes.map(each => ({value: each.value, label: each.label,
                                                        iconName: root.signs[each.value] ?? ""}))
                value: root.page.theme
                onChosen: value => root.page.theme = value
            }
        }
        SettingsRow {
            title: qsTr("Accent")
            note: qsTr("One colour, used only for what is alive or chosen.")
            AccentPicker {
                options: root.page.accents
                value: root.page.accent
                onChosen: value => root.page.accent = value
            }
        }
        SettingsRow {
            title: qsTr("Surface")
            note: qsTr("Frosted is slightly see-through; Solid is not.")
            Segmented {
                name: qsTr("Surface")
                options: root.page.materials
                value: root.page.material
                onChosen: value => root.page.material = value
            }
        }
        SettingsRow {
            title: qsTr("Reduce motion")
            note: qsTr("Follows the system; switch on to be sure.")
            Toggle {
                name: qsTr("Reduce motion")
                checked: root.page.reduceMotion
                onToggled: checked => root.page.reduceMotion = checked
            }
        }
    }
    SettingsGroup {
        title: qsTr("Reading")
        PhraseSample {
            width: parent.width
            page: root.page
        }
        SettingsRow {
            title: qsTr("Text size")
            note: qsTr("For phrases and Names")
            Segmented {
                name: qsTr("Text size")
                options: root.page.textSizes
                value: root.page.textSize
                onChosen: value => root.page.textSize = value
            }
        }
        SettingsRow {
            title: qsTr("Transliteration")
            Toggle {
                name: qsTr("Transliteration")
                checked: root.page.transliteration
                onToggled: checked => root.page.transliteration = checked
            }
        }
        SettingsRow {
            title: qsTr("Translation")
            Toggle {
                name: qsTr("Translation")
                checked: root.page.translation
                onToggled: checked => root.page.translation = checked
            }
        }
    }
}
