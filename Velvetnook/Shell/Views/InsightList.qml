// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A short list below the figures.
Column {
    id: root

    property string title
    property var entries: []
    property color ink: Theme.color.text1

    topPadding: 14

    Txt {
        width: parent.width
        bottomPadding: 4
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "caption"
        color: Theme.color.text3
        text: root.title
        Accessible.role: Accessible.Heading
    }
    Repeater {
        model: root.entries
        delegate: InsightRow {
            required property var modelData

            width: root.width
            dense: true
            label: modelData.label
            value: modelData.value
            ink: root.ink
        }
    }
}
