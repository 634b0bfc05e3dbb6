// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// An Arabic text, placed by its ink: its marks reach far out of the font's line, so the room
// for them is reserved above and below the baseline and nothing is ever cut. A text that is too
// wide drops in steps of 2 to 24 and then wraps.
Item {
    id: root

    property string text
    property real pixelSize: 24
    property color color: Theme.color.text1
    property real maximumWidth: Infinity
    property int horizontalAlignment: Text.AlignHCenter
    // The box is the ink of the one line and nothing more: to centre it by the eye.
    property bool byInk: false

    readonly property real fittedSize: Theme.ink.fittedSize(text, pixelSize, maximumWidth)
    readonly property rect ink: Theme.ink.bounds(text, fittedSize)
    readonly property int lineCount: label.lineCount
    readonly property real above: byInk ? -ink.y : Theme.ink.above(fittedSize)
    readonly property real line: Theme.ink.above(fittedSize) + Theme.ink.below(fittedSize)
    // A few letters reach below even that room; the box then reaches with them.
    readonly property real excess: Math.max(0, ink.y + ink.height - Theme.ink.below(fittedSize))
    readonly property real lineWidth: Theme.ink.width(text, fittedSize)
    readonly property bool isWrapped: lineWidth > maximumWidth
    // Where it wraps, any letter may end a line and hang over it.
    readonly property real overhang: Math.max(Theme.ink.overhang(text, fittedSize),
                                              isWrapped ? Math.ceil(fittedSize / 8) : 0)

    implicitWidth: Math.min(lineWidth, maximumWidth)
    implicitHeight: byInk ? Math.ceil(ink.height) : Math.ceil(line * lineCount + excess)
    baselineOffset: above
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: label

        x: root.overhang
        y: root.above - baselineOffset
        width: root.width - 2 * root.overhang
        text: root.text
        textFormat: Text.PlainText
        font.family: Theme.arabicFamily
        font.pixelSize: root.fittedSize
        lineHeight: root.line
        lineHeightMode: Text.FixedHeight
        wrapMode: root.isWrapped ? Text.Wrap : Text.NoWrap
        horizontalAlignment: root.horizontalAlignment
        color: root.color
        Accessible.ignored: true
    }
}
