// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The bead of the present count. It swells to its size as it is counted; the one of an open
// count travels on its ring.
Beads {
    id: root

    required property Item ring
    property real place: 0 // 0 to 1, clockwise from the top
    property real size: 6
    property bool travels: false

    property real angle: place * 2 * Math.PI
    property int seen: -1

    x: ring.diameter / 2 + ring.radius * Math.sin(angle) - size
    y: ring.diameter / 2 - ring.radius * Math.cos(angle) - size
    width: 2 * size
    height: width
    color: ring.ink

    Connections {
        target: root.ring
        // Never queued: the last count wins.
        function onCountChanged() {
            const isNext = root.ring.count === root.seen + 1;
            root.seen = root.ring.count;
            if (isNext && root.visible && !root.travels && !Theme.reducedMotion) {
                swell.restart();
            }
        }
    }
    Component.onCompleted: seen = ring.count

    NumberAnimation {
        id: swell

        target: root
        property: "scale"
        from: 0
        to: 1
        duration: 160
        easing.type: Easing.BezierSpline
        easing.bezierCurve: Theme.motion.settle
    }
    Behavior on angle {
        enabled: root.travels && root.visible && !Theme.reducedMotion
        RotationAnimation {
            direction: RotationAnimation.Numerical
            duration: 160
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.settle
        }
    }
}
