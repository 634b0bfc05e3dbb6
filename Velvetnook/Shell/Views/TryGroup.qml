// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A reminder to look at, and a rest from all of them.
SettingsGroup {
    id: root

    required property QtObject page

    title: qsTr("Try it")

    SettingsRow {
        title: qsTr("Test notification")
        note: root.page.testText
        noteColor: root.page.testIsDenied ? Theme.color.danger : Theme.color.accent
        SecondaryButton {
            small: true
            text: qsTr("Send a preview")
            onClicked: root.page.sendTest()
        }
    }
    SettingsRow {
        title: qsTr("Pause all reminders")
        note: root.page.isPaused ? root.page.pausedText
                                 : qsTr("Until tomorrow morning, one hour, or a time you set.")
        SecondaryButton {
            visible: root.page.isPaused
            small: true
            text: qsTr("Resume")
            onClicked: root.page.endPause()
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
                items: [{text: qsTr("For an hour")}, {text: qsTr("Until tomorrow morning")},
                        {separator: true}, {text: qsTr("Until a time…")}]
                onChosen: index => {
                    if (index === 0) {
                        root.page.pauseForHours(1);
                    } else if (index === 1) {
                        root.page.pauseUntilTomorrow();
                    } else {
                        until.visible = true;
                        time.forceActiveFocus();
                    }
                }
            }
        }
    }
    SettingsRow {
        id: until

        visible: false
        title: qsTr("Pause until")
        note: qsTr("The next time that the clock shows this, such as 16:30")
        Field {
            id: time

            width: error === "" ? 72 : 200
            name: qsTr("Pause until")
            onAccepted: {
                error = root.page.pauseUntil(text);
                until.visible = error !== "";
            }
            Keys.onEscapePressed: until.visible = false
        }
    }
}
