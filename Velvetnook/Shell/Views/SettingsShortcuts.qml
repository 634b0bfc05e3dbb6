// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: the key that works everywhere, and the keys of the panel to look up.
Column {
    id: root

    readonly property var panelKeys: [
        {text: qsTr("Open the first tools"), keys: ["Ctrl", "1 … 9"]},
        {text: qsTr("Next and previous tool"), keys: ["Ctrl", "Tab"]},
        {text: qsTr("Search for anything"), keys: ["Ctrl", "K"]},
        {text: qsTr("Settings"), keys: ["Ctrl", ","]},
        {text: qsTr("Header, body, footer"), keys: ["F6"]},
        {text: qsTr("Back, then close"), keys: ["Esc"]},
    ]
    readonly property var counterKeys: [
        {text: qsTr("Count"), keys: ["Space"]},
        {text: qsTr("Take one back"), keys: ["Z"]},
        {text: qsTr("Pause"), keys: ["P"]},
        {text: qsTr("Finish"), keys: ["F"]},
        {text: qsTr("Target"), keys: ["T"]},
        {text: qsTr("Start again"), keys: ["R"]},
        {text: qsTr("History"), keys: ["H"]},
    ]

    ShortcutGroup {}
    KeyTable {
        title: qsTr("In the panel")
        keyRows: root.panelKeys
    }
    KeyTable {
        title: qsTr("In the counter")
        note: qsTr("Single letters work while no text is being typed.")
        keyRows: root.counterKeys
    }
}
