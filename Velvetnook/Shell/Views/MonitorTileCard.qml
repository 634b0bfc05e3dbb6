// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One figure of the machine over its last minute; a click shows what was recorded of it.
Card {
    id: root

    required property QtObject tile

    width: 143
    height: 87
    padding: 0
    corner: 14
    interactive: true
    name: qsTr("%1: %2 %3").arg(tile.title).arg(tile.isMissing ? tile.problem : tile.whole).arg(tile.note)

    Icon {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 11
        name: root.tile.icon
        size: 14
        color: Theme.color.text3
    }
    Txt {
        id: title

        anchors.left: sign.right
        anchors.leftMargin: 6
        y: 10
        role: "label"
        text: root.tile.title
        color: Theme.color.text2
        Accessible.ignored: true
    }
    Txt {
        anchors.left: title.right
        anchors.leftMargin: 6
        anchors.right: parent.right
        anchors.rightMargin: 12
        y: 11
        horizontalAlignment: Text.AlignRight
        role: "caption"
        text: root.tile.note
        color: Theme.color.text3
        Accessible.ignored: true
    }
    Txt {
        id: figure

        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 29
        role: "heading"
        font.weight: Font.Medium
        text: root.tile.value
        color: root.tile.isMissing ? Theme.color.text3 : Theme.color.text1
        Accessible.ignored: true
    }
    Txt {
        anchors.left: figure.right
        anchors.leftMargin: 4
        anchors.right: parent.right
        anchors.rightMargin: 6
        anchors.baseline: figure.baseline
        horizontalAlignment: Text.AlignLeft
        role: root.tile.isMissing ? "caption" : "body"
        text: root.tile.isMissing ? root.tile.problem : root.tile.rest
        color: root.tile.isMissing ? Theme.color.text3 : Theme.color.text2
        Accessible.ignored: true
    }
    Sparkline {
        y: 55
        width: parent.width
        height: 32
        corner: 14
        values: root.tile.series
        color: Theme.color.accent
        mirrored: root.LayoutMirroring.enabled
    }
}
