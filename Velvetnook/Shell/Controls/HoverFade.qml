// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// How a fill changes under the pointer.
ColorAnimation {
    duration: Theme.reducedMotion ? 100 : Theme.motion.hover
    easing.type: Easing.BezierSpline
    easing.bezierCurve: Theme.motion.standard
}
