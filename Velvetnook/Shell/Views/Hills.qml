// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes

// One range of hills of a picture of a desktop, down to its rounded lower corners.
Shape {
    id: root

    property color tone
    property real crest

    anchors.fill: parent
    antialiasing: true
    Accessible.ignored: true

    ShapePath {
        fillColor: root.tone
        strokeColor: "transparent"
        startX: 0
        startY: root.crest
        PathCubic {
            x: 200
            y: root.crest - 6
            control1X: 70
            control1Y: root.crest - 22
            control2X: 120
            control2Y: root.crest + 16
        }
        PathCubic {
            x: 400
            y: root.crest - 10
            control1X: 270
            control1Y: root.crest - 26
            control2X: 330
            control2Y: root.crest + 14
        }
        PathLine { x: 400; y: 134 }
        PathArc { x: 386; y: 148; radiusX: 14; radiusY: 14 }
        PathLine { x: 14; y: 148 }
        PathArc { x: 0; y: 134; radiusX: 14; radiusY: 14 }
    }
}
