// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Keys and what they do, to look up.
SettingsGroup {
    id: root

    property var keyRows: [] // [{text, keys}]

    Repeater {
        model: root.keyRows
        delegate: SettingsRow {
            id: line

            required property var modelData

            implicitHeight: 38
            title: modelData.text
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData.text + " " + modelData.keys.join("+")

            Row {
                spacing: 4
                Repeater {
                    model: line.modelData.keys
                    delegate: KeyCap {
                        required property string modelData

                        text: modelData
                    }
                }
            }
        }
    }
}
