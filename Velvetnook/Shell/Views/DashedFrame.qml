// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes
import Velvetnook.Application

// Where something may be put down.
Shape {
    id: root

    property real corner: 16
    property color line: Theme.color.line2

    readonly property real inset: 0.75

    Accessible.ignored: true

    ShapePath {
        strokeColor: root.line
        strokeWidth: Theme.outline
        strokeStyle: ShapePath.DashLine
        dashPattern: [3, 2.5]
        fillColor: "transparent"
        startX: root.corner
        startY: root.inset
        PathLine { x: root.width - root.corner; y: root.inset }
        PathArc {
            x: root.width - root.inset
            y: root.corner
            radiusX: root.corner - root.inset
            radiusY: root.corner - root.inset
        }
        PathLine { x: root.width - root.inset; y: root.height - root.corner }
        PathArc {
            x: root.width - root.corner
            y: root.height - root.inset
            radiusX: root.corner - root.inset
            radiusY: root.corner - root.inset
        }
        PathLine { x: root.corner; y: root.height - root.inset }
        PathArc {
            x: root.inset
            y: root.height - root.corner
            radiusX: root.corner - root.inset
            radiusY: root.corner - root.inset
        }
        PathLine { x: root.inset; y: root.corner }
        PathArc {
            x: root.corner
            y: root.inset
            radiusX: root.corner - root.inset
            radiusY: root.corner - root.inset
        }
    }
}
