// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// A number that changes: every digit stands in a cell of the same width, so nothing jitters.
// Numbers run from left to right in every language.
Item {
    id: root

    property string text
    property string role: "display"
    property real pixelSize: Theme.pixelSizeOf(role)
    property color color: Theme.color.text1
    property int weight: Theme.weightOf(role)
    property bool crossFade: false // for a count

    readonly property real lineHeight:
        Math.round(Theme.lineHeight[role] * pixelSize / Theme.pixelSizeOf(role))

    implicitWidth: Math.ceil(row.implicitWidth)
    implicitHeight: lineHeight
    baselineOffset: Theme.baseline(role, pixelSize, lineHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Row {
        id: row

        layoutDirection: Qt.LeftToRight
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        Repeater {
            model: root.text.length
            delegate: DigitCell {
                required property int index

                letter: root.text.charAt(index)
                role: root.role
                pixelSize: root.pixelSize
                weight: root.weight
                color: root.color
                crossFade: root.crossFade && root.visible && !Theme.reducedMotion
            }
        }
    }
}
