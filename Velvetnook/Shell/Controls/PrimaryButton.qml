// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The one step that a view is for.
ButtonBase {
    fill: Theme.color.accent
    fillHover: Theme.color.accentHover
    fillPressed: Theme.color.accentPressed
    ink: Theme.color.onAccent
    iconInk: Theme.color.onAccent
    weight: Font.DemiBold
}
