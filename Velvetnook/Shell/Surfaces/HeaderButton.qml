// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A button at the far end of the panel's header, one step back from the tabs.
IconButton {
    property bool chosen: false

    implicitWidth: 34
    implicitHeight: 32
    corner: Theme.radius.row
    iconSize: 18
    filled: chosen
    ink: chosen ? Theme.color.accent : Theme.color.text3
}
