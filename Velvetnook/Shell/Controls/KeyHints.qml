// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// What keys do here: keycaps and a word each.
Row {
    id: root

    property var keys: [] // [{key, text}]

    spacing: 14

    Repeater {
        model: root.keys
        delegate: Row {
            id: hint

            required property var modelData

            spacing: 6
            KeyCap {
                anchors.verticalCenter: parent.verticalCenter
                text: hint.modelData.key
            }
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                role: "note"
                color: Theme.color.text3
                text: hint.modelData.text
            }
        }
    }
}
