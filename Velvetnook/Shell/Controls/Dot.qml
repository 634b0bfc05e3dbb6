// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import Velvetnook.Application

// A small mark of state. Words beside it say the same.
Beads {
    property real size: 6

    width: size
    height: size
    color: Theme.color.accent
}
