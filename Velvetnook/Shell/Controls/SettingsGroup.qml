// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// Settings that belong together, on one card.
Column {
    id: root

    property string title
    property string note
    default property alias rows: rows.data

    width: parent ? parent.width : 480
    spacing: 8

    Column {
        visible: root.title !== "" || root.note !== ""
        x: 4
        width: parent.width - 8
        topPadding: root.Positioner.isFirstItem ? 0 : 18
        Txt {
            visible: text !== ""
            width: parent.width
            text: root.title
            role: "strong"
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
        }
        Txt {
            visible: text !== ""
            width: parent.width
            text: root.note
            role: "note"
            color: Theme.color.text3
            wrapMode: Text.Wrap
        }
    }
    Rectangle {
        width: parent.width
        height: rows.height
        radius: Theme.radius.card
        color: Theme.color.bg1

        Column {
            id: rows

            width: parent.width
        }
    }
}
