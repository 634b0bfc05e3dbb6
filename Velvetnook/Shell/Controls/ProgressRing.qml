// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes
import Velvetnook.Application

// A ring that fills from the top, clockwise in every language.
Item {
    id: root

    property real value: 0 // 0 to 1
    property real diameter: 168
    property real thickness: 5
    property color color: Theme.color.accent
    property color trackColor: Theme.color.bg3
    property string name

    readonly property real radius: (diameter - thickness) / 2

    implicitWidth: diameter
    implicitHeight: diameter
    Accessible.role: Accessible.ProgressBar
    Accessible.name: name

    Shape {
        anchors.fill: parent
        layer.enabled: GraphicsInfo.api !== GraphicsInfo.Software
        layer.samples: 4

        ShapePath {
            strokeColor: root.trackColor
            strokeWidth: root.thickness
            fillColor: "transparent"
            PathAngleArc {
                centerX: root.diameter / 2
                centerY: root.diameter / 2
                radiusX: root.radius
                radiusY: root.radius
                startAngle: 0
                sweepAngle: 360
            }
        }
        ShapePath {
            strokeColor: root.value > 0 ? root.color : "transparent"
            strokeWidth: root.thickness
            capStyle: ShapePath.RoundCap
            fillColor: "transparent"
            PathAngleArc {
                centerX: root.diameter / 2
                centerY: root.diameter / 2
                radiusX: root.radius
                radiusY: root.radius
                startAngle: -90
                sweepAngle: 360 * Math.min(1, Math.max(0, root.value))
            }
        }
    }
}
