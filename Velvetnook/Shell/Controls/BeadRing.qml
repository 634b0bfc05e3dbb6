// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// One bead per count up to a target of 100, an arc beyond; an open count is one bead that
// turns once per 33. The same in every reading direction. Content stands on the disc.
Item {
    id: root

    property real count: 0
    property real target: 0 // 0: an open count
    property bool paused: false
    property real diameter: 220
    property real discDiameter: 0 // 0: none
    property bool discLit: false
    property string name
    default property alias content: disc.data

    readonly property bool isOpen: target <= 0
    readonly property bool isReached: !isOpen && count >= target
    readonly property int beads: isOpen || target > 100 ? 0 : target
    readonly property int on: Math.min(count, beads)
    readonly property real inset: diameter >= 120 ? 10 : 4
    readonly property real radius: diameter / 2 - inset
    readonly property real bead: Math.min(4.6, 2 * Math.PI * radius / Math.max(1, beads) * 0.29)
    readonly property color ink: paused ? Theme.color.text3 : Theme.color.accent

    implicitWidth: diameter
    implicitHeight: diameter
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Rectangle {
        id: disc

        visible: root.discDiameter > 0
        anchors.centerIn: parent
        width: root.discDiameter
        height: width
        radius: width / 2
        color: root.isReached ? Theme.color.soft : root.discLit ? Theme.color.bg2 : Theme.color.bg1
        Behavior on color {
            enabled: root.visible
            ColorAnimation {
                duration: Theme.reducedMotion ? 100
                        : root.isReached ? Theme.motion.target : Theme.motion.hover
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.motion.standard
            }
        }
    }
    Beads {
        anchors.fill: parent
        visible: root.beads > 0
        total: root.beads
        lit: root.on
        ringRadius: root.radius
        beadRadius: root.bead
        color: Qt.alpha(root.ink, 0.82)
        restColor: Theme.color.bg3
    }
    BeadHead {
        ring: root
        visible: root.on > 0
        place: (root.on - 1) / Math.max(1, root.beads)
        size: root.bead * 1.42
    }
    ProgressRing {
        visible: !root.isOpen && root.beads === 0
        anchors.centerIn: parent
        diameter: root.diameter - 2 * root.inset + thickness
        color: root.ink
        value: root.isOpen ? 0 : root.count / root.target
        Accessible.ignored: true
    }
    ProgressRing {
        visible: root.isOpen
        anchors.centerIn: parent
        diameter: root.diameter - 2 * root.inset + thickness
        thickness: root.diameter >= 120 ? 3 : 2
        Accessible.ignored: true
    }
    BeadHead {
        ring: root
        visible: root.isOpen
        place: root.count % 33 / 33
        size: root.diameter >= 120 ? 6 : 3
        travels: true
    }
}
