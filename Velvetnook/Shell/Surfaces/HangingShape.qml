// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes

// What hangs from the top edge of the screen: round below, and at the edge its sides curve out
// to it. The fillets lie outside the item's own width.
Shape {
    id: root

    property real radius: 13
    property real fillet: 9
    property color topColor: "black"
    property color color: "black" // from 96 px on

    layer.enabled: GraphicsInfo.api !== GraphicsInfo.Software
    layer.samples: 4

    ShapePath {
        strokeColor: "transparent"
        strokeWidth: 0
        startX: -root.fillet
        startY: 0
        fillGradient: LinearGradient {
            y2: 96
            GradientStop { position: 0; color: root.topColor }
            GradientStop { position: 1; color: root.color }
        }

        PathArc {
            x: 0
            y: root.fillet
            radiusX: root.fillet
            radiusY: root.fillet
        }
        PathLine { x: 0; y: root.height - root.radius }
        PathArc {
            x: root.radius
            y: root.height
            radiusX: root.radius
            radiusY: root.radius
            direction: PathArc.Counterclockwise
        }
        PathLine { x: root.width - root.radius; y: root.height }
        PathArc {
            x: root.width
            y: root.height - root.radius
            radiusX: root.radius
            radiusY: root.radius
            direction: PathArc.Counterclockwise
        }
        PathLine { x: root.width; y: root.fillet }
        PathArc {
            x: root.width + root.fillet
            y: 0
            radiusX: root.fillet
            radiusY: root.fillet
        }
        PathLine { x: -root.fillet; y: 0 }
    }
}
