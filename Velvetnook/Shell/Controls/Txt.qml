// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A text in one of the roles of the type scale. Its lines have the role's height, with the
// letters in their middle: also where a letter comes from a fallback face with a line of its own.
Item {
    id: root

    property string role: "body"
    property real pixelSize: face.pixelSize
    property real lineHeight: Math.round(Theme.lineHeight[role] * pixelSize / face.pixelSize)
    property alias text: label.text
    property alias color: label.color
    property alias font: label.font
    property alias textFormat: label.textFormat
    property alias wrapMode: label.wrapMode
    property alias elide: label.elide
    property alias horizontalAlignment: label.horizontalAlignment
    property alias maximumLineCount: label.maximumLineCount
    property alias lineCount: label.lineCount
    property alias truncated: label.truncated
    property alias contentWidth: label.contentWidth
    property int verticalAlignment: Text.AlignTop
    property real leftPadding: 0
    property real rightPadding: 0
    property real topPadding: 0
    property real bottomPadding: 0

    readonly property font face: Theme.type[role]
    readonly property real contentHeight: lineCount * lineHeight
    readonly property real slack: Math.max(0, height - topPadding - bottomPadding
                                              - contentHeight)
    readonly property real start: verticalAlignment === Text.AlignVCenter ? slack / 2
                                : verticalAlignment === Text.AlignBottom ? slack : 0

    implicitWidth: Math.ceil(label.implicitWidth) + leftPadding + rightPadding
    implicitHeight: contentHeight + topPadding + bottomPadding
    baselineOffset: topPadding + start + Theme.baseline(role, font.pixelSize, lineHeight)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        id: label

        x: root.leftPadding
        y: Math.round(root.baselineOffset - baselineOffset)
        width: root.width - root.leftPadding - root.rightPadding
        font.family: root.face.family
        font.pixelSize: root.pixelSize
        font.weight: root.face.weight
        font.hintingPreference: Font.PreferNoHinting
        font.letterSpacing: root.face.letterSpacing * root.pixelSize / root.face.pixelSize
        lineHeight: root.lineHeight
        lineHeightMode: Text.FixedHeight
        color: Theme.color.text1
        textFormat: Text.PlainText
        elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
        Accessible.ignored: true
    }
}
