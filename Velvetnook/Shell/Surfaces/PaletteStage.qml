// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// Where the palette stands: over the whole screen, which it darkens, or alone in its window
// where windows cannot be mixed.
FocusScope {
    id: root

    property bool isWholeScreen: true
    property bool isOpen: false
    property int surfaceTop: 0
    property real maximumHeight: 640
    readonly property real surfaceHeight: surface.implicitHeight

    signal dismissed

    focus: true

    Rectangle {
        anchors.fill: parent
        visible: root.isWholeScreen
        color: Theme.color.scrim
        opacity: surface.opacity

        MouseArea {
            anchors.fill: parent
            onClicked: root.dismissed()
        }
    }
    PaletteSurface {
        id: surface

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.surfaceTop + rise
        width: implicitWidth
        height: implicitHeight
        maximumHeight: root.maximumHeight
        focus: true

        property real rise: 0
    }
    states: State {
        name: "open"
        when: root.isOpen
    }
    transitions: Transition {
        to: "open"
        enabled: root.isWholeScreen
        ParallelAnimation {
            NumberAnimation {
                target: surface
                property: "opacity"
                from: 0
                to: 1
                duration: Theme.reducedMotion ? 100 : Theme.motion.palette
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.motion.settle
            }
            NumberAnimation {
                target: surface
                property: "rise"
                from: Theme.reducedMotion ? 0 : 8
                to: 0
                duration: Theme.reducedMotion ? 0 : Theme.motion.palette
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.motion.settle
            }
        }
    }
}
