// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: what of the clipboard is kept, and how long.
Column {
    id: root

    readonly property QtObject page: App.settings.clipboard

    SettingsGroup {
        SettingsRow {
            title: qsTr("Keep what I copy")
            note: qsTr("Sealed with a key from your keyring, on this computer only.")
            Toggle {
                name: qsTr("Keep what I copy")
                checked: root.page.records
                onToggled: checked => root.page.records = checked
            }
        }
        SettingsRow {
            visible: root.page.records
            title: qsTr("Pause")
            note: qsTr("What is copied meanwhile is not kept.")
            Toggle {
                name: qsTr("Pause")
                checked: root.page.paused
                onToggled: checked => root.page.paused = checked
            }
        }
        SettingsRow {
            title: qsTr("Enter pastes")
            note: qsTr("Into the window that had the keyboard, where the desktop allows it.")
            Toggle {
                name: qsTr("Enter pastes")
                checked: root.page.pastes
                onToggled: checked => root.page.pastes = checked
            }
        }
    }
    SettingsGroup {
        title: qsTr("How much is kept")
        note: qsTr("Favourites stay whatever the limits are.")
        SettingsRow {
            title: qsTr("For")
            Picker {
                name: qsTr("For")
                options: root.page.dayChoices
                value: root.page.days
                onChosen: value => root.page.days = value
            }
        }
        SettingsRow {
            title: qsTr("At most, items")
            Picker {
                name: qsTr("At most, items")
                options: root.page.countChoices
                value: root.page.count
                onChosen: value => root.page.count = value
            }
        }
        SettingsRow {
            title: qsTr("Images and files, at most")
            Picker {
                name: qsTr("Images and files, at most")
                options: root.page.byteChoices
                value: root.page.bytes
                onChosen: value => root.page.bytes = value
            }
        }
        SettingsRow {
            title: qsTr("Remove the history")
            note: qsTr("All but the favourites.")
            DangerButton {
                small: true
                text: qsTr("Remove…")
                onClicked: ask.open()
            }
        }
    }
    SettingsGroup {
        title: qsTr("Never from these applications")
        note: qsTr("What password managers mark as such is always left out.")
        SettingsRow {
            title: qsTr("Add an application")
            note: qsTr("By the name that its windows go by, such as KeePassXC.")
            Field {
                id: field

                width: 180
                hint: qsTr("Name")
                error: root.page.exclusionRefusal
                onAccepted: {
                    if (root.page.addExclusion(text)) {
                        clear();
                    }
                }
            }
            SecondaryButton {
                id: pick

                property var names: []

                small: true
                text: qsTr("Running…")
                onClicked: {
                    names = root.page.running();
                    menu.popup(0, height + 6);
                }
                PopupMenu {
                    id: menu

                    items: pick.names.length > 0
                           ? pick.names.map(name => ({text: name}))
                           : [{text: qsTr("None that is not here already"), enabled: false}]
                    onChosen: index => root.page.addExclusion(pick.names[index])
                }
            }
        }
        Flow {
            visible: root.page.exclusions.length > 0
            width: parent.width
            leftPadding: 16
            rightPadding: 16
            bottomPadding: 14
            spacing: 8
            Repeater {
                model: root.page.exclusions
                delegate: Chip {
                    required property string modelData

                    text: modelData
                    iconName: "x"
                    Accessible.name: qsTr("Take out %1").arg(modelData)
                    onClicked: root.page.removeExclusion(modelData)
                }
            }
        }
    }
    AskDialog {
        id: ask

        title: qsTr("Remove all but the favourites?")
        body: qsTr("What was copied goes for good. It cannot be brought back.")
        acceptText: qsTr("Remove all")
        cancelText: qsTr("Keep")
        dangerous: true
        onAccepted: root.page.clearWanted()
    }
}
