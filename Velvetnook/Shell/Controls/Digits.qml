// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application

// A number that changes: every digit stands in a cell of the same width, so nothing jitters.
Row {
    id: root

    property string text
    property string role: "display"
    property real pixelSize: Theme.type[role].pixelSize
    property color color: Theme.color.text1
    property bool crossFade: false // for a count

    baselineOffset: probe.baselineOffset
    layoutDirection: Qt.LeftToRight
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Txt {
        id: probe

        visible: false
        role: root.role
        pixelSize: root.pixelSize
        text: "0"
    }
    Repeater {
        model: root.text.length
        delegate: DigitCell {
            required property int index

            letter: root.text.charAt(index)
            role: root.role
            pixelSize: root.pixelSize
            color: root.color
            crossFade: root.crossFade && root.visible
        }
    }
}
