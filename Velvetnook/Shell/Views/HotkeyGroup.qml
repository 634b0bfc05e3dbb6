// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The palette's key, which works over every application.
SettingsGroup {
    id: root

    readonly property string key: App.palette.hotkeyText
    readonly property bool isFull: App.palette.isHotkeyFull

    SettingsRow {
        title: qsTr("Open the palette from anywhere")
        note: root.isFull ? qsTr("It works over every application.")
                          : App.palette.hotkeyProblem
        noteColor: root.isFull ? Theme.color.text3 : Theme.color.warn
        Row {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 4
            Repeater {
                model: root.key === "" ? [] : root.key.split("+")
                delegate: KeyCap {
                    required property string modelData

                    text: modelData
                }
            }
        }
    }
}
