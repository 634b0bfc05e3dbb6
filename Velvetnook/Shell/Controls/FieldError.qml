// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// Why a value was refused, in the engine's own words.
Item {
    id: root

    property string text

    // Bound and not laid out, so that what holds it knows its height at once.
    implicitHeight: words.implicitHeight

    Icon {
        x: root.LayoutMirroring.enabled ? root.width - 14 : 0
        y: 1
        name: "alert"
        size: 14
        color: Theme.color.danger
    }
    Txt {
        id: words

        x: root.LayoutMirroring.enabled ? 0 : 20
        width: root.width - 20
        text: root.text
        role: "note"
        color: Theme.color.danger
        wrapMode: Text.Wrap
        Accessible.role: Accessible.AlertMessage
    }
}
