// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A step that should not draw the eye.
ButtonBase {
    fill: Qt.alpha(Theme.color.bg3, 0)
    fillDisabled: fill
    ink: Theme.color.text2
}
