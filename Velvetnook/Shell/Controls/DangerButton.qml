// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A step that cannot be taken back.
ButtonBase {
    fill: Theme.color.dangerSoft
    fillHover: Qt.tint(Theme.color.dangerSoft, Qt.alpha(Theme.color.danger, 0.1))
    fillPressed: Qt.tint(Theme.color.dangerSoft, Qt.alpha(Theme.color.danger, 0.2))
    ink: Theme.color.danger
    iconInk: Theme.color.danger
}
