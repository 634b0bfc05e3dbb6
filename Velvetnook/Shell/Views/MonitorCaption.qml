// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The head of a column of figures.
Txt {
    height: 20
    verticalAlignment: Text.AlignVCenter
    horizontalAlignment: Text.AlignRight
    role: "caption"
    color: Theme.color.text3
}
