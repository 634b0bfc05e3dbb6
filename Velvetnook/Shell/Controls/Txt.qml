// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A text in one of the roles of the type scale, on the role's line height.
Text {
    id: root

    property string role: "body"
    property real pixelSize: face.pixelSize

    readonly property font face: Theme.type[role]

    font.family: face.family
    font.pixelSize: pixelSize
    font.weight: face.weight
    font.hintingPreference: Font.PreferNoHinting
    font.letterSpacing: face.letterSpacing * pixelSize / face.pixelSize
    lineHeight: Math.round(Theme.lineHeight[role] * pixelSize / face.pixelSize)
    lineHeightMode: Text.FixedHeight
    color: Theme.color.text1
    textFormat: Text.PlainText
    elide: wrapMode === Text.NoWrap ? Text.ElideRight : Text.ElideNone
    verticalAlignment: Text.AlignVCenter
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
