// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the weather is to be had until the panel shows it.
Card {
    CardLabel {
        width: parent.width
        iconName: "weather"
        text: qsTr("Weather")
    }
    Txt {
        y: 26
        width: parent.width
        role: "note"
        text: qsTr("For now, “kest weather” tells it in the terminal.")
        color: Theme.color.text3
        wrapMode: Text.Wrap
    }
}
