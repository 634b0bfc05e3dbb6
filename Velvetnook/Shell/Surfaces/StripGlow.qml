// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// A soft light around the strip that breathes twice and rests. Rings of one weight each add up
// to it, so no effect is needed.
Item {
    id: root

    property real radius: 13
    property bool running: false

    readonly property int reach: 26
    readonly property int rings: 13

    opacity: 0
    visible: running && !Theme.reducedMotion

    Repeater {
        model: root.rings
        delegate: Rectangle {
            required property int index

            readonly property real out: root.reach * (index + 1) / root.rings

            anchors.fill: parent
            anchors.margins: -out
            anchors.topMargin: -out
            radius: root.radius + out
            color: Qt.alpha(Theme.onStrip.accent, 0.38 / root.rings * 1.6
                            * Math.exp(-index * index / 72))
        }
    }
    SequentialAnimation on opacity {
        running: root.visible
        loops: 2

        NumberAnimation {
            from: 0
            to: 1
            duration: Theme.motion.breathe / 2
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.breatheCurve
        }
        NumberAnimation {
            to: 0
            duration: Theme.motion.breathe / 2
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.breatheCurve
        }
    }
}
