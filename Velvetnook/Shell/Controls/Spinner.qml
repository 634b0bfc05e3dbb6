// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes
import Velvetnook.Application

// Says that something is being done; turns only where it can be seen.
Shape {
    id: root

    property real diameter: 16
    property color color: Theme.color.accent
    property color trackColor: Theme.color.bg3

    width: diameter
    height: diameter
    layer.enabled: GraphicsInfo.api !== GraphicsInfo.Software
    layer.samples: 4
    Accessible.role: Accessible.Indicator
    Accessible.name: qsTr("Working")

    ShapePath {
        strokeColor: root.trackColor
        strokeWidth: 2
        fillColor: "transparent"
        PathAngleArc {
            centerX: root.diameter / 2
            centerY: root.diameter / 2
            radiusX: root.diameter / 2 - 1
            radiusY: root.diameter / 2 - 1
            startAngle: 0
            sweepAngle: 360
        }
    }
    ShapePath {
        strokeColor: root.color
        strokeWidth: 2
        fillColor: "transparent"
        PathAngleArc {
            centerX: root.diameter / 2
            centerY: root.diameter / 2
            radiusX: root.diameter / 2 - 1
            radiusY: root.diameter / 2 - 1
            startAngle: -135
            sweepAngle: 90
        }
    }
    RotationAnimation on rotation {
        running: root.visible && root.Window.visibility !== Window.Hidden
                 && !Theme.reducedMotion
        from: 0
        to: 360
        duration: 900
        loops: Animation.Infinite
    }
}
