// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The last step: the ways in.
Item {
    id: root

    OnboardingHeading {
        id: heading

        width: parent.width
        title: qsTr("That is all")
        note: qsTr("Three ways in, and none of them asks for your attention.")
    }
    Row {
        id: ways

        readonly property real each: (width - 24) / 3

        anchors.top: heading.bottom
        anchors.topMargin: 22
        width: parent.width
        spacing: 12

        OnboardingWay {
            width: ways.each
            iconName: "notch"
            title: qsTr("Rest on the strip")
            note: qsTr("The pointer opens it, leaving closes it.")
            keys: [qsTr("Hover")]
        }
        OnboardingWay {
            width: ways.each
            iconName: "search"
            title: qsTr("Search for anything")
            note: qsTr("Tools, phrases, units, notes.")
            keys: App.palette.hotkeyText.split("+").filter(key => key !== "")
        }
        OnboardingWay {
            width: ways.each
            iconName: "settings"
            title: qsTr("Make it yours")
            note: qsTr("Place, reminders and look wait in the settings.")
            keys: ["Ctrl", ","]
        }
    }
}
