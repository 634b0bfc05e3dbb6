// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// How a control gives under the finger. Nothing travels with reduced motion.
NumberAnimation {
    duration: Theme.reducedMotion ? 0 : Theme.motion.press
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.motion.standard
}
