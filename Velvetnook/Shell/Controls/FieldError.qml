// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// Why a value was refused, in the engine's own words.
Row {
    id: root

    property string text

    spacing: 6

    Icon {
        y: 1
        name: "alert"
        size: 14
        color: Theme.color.danger
    }
    Txt {
        width: root.width - 20
        text: root.text
        role: "note"
        color: Theme.color.danger
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
