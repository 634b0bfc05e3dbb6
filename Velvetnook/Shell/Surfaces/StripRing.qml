// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How far the timer of the strip is.
ProgressRing {
    value: Math.max(0, App.strip.ring)
    diameter: 16
    thickness: 2.5
    color: Theme.onStrip.accent
    trackColor: "#2EFFFFFF"
    Accessible.ignored: true
}
