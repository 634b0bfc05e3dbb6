// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the strip keeps away: for a while, and from some applications.
SettingsGroup {
    id: root

    required property QtObject page

    title: qsTr("Keeping away")

    SettingsRow {
        title: qsTr("Pause the strip")
        note: root.page.pausedText
        noteColor: root.page.isPaused ? Theme.color.accent : Theme.color.text3
        SecondaryButton {
            visible: root.page.isPaused
            small: true
            text: qsTr("Resume")
            onClicked: root.page.resume()
        }
        SecondaryButton {
            id: pause

            visible: !root.page.isPaused
            small: true
            text: qsTr("Pause…")
            onClicked: menu.open()

            PopupMenu {
                id: menu

                y: pause.height + 6
                x: pause.LayoutMirroring.enabled ? 0 : pause.width - width
                items: [{text: qsTr("For half an hour")}, {text: qsTr("For an hour")},
                        {text: qsTr("Until tomorrow")}]
                onChosen: index => index === 2 ? root.page.pauseUntilTomorrow()
                                               : root.page.pauseForMinutes(30 * (index + 1))
            }
        }
    }
    SettingsRow {
        title: qsTr("Not over these applications")
        note: qsTr("By the name that their windows go by, such as vlc.")
        Field {
            id: field

            width: 200
            hint: qsTr("Add an application")
            iconName: "plus"
            error: root.page.exclusionRefusal
            onAccepted: {
                if (root.page.addExclusion(text)) {
                    clear();
                }
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
