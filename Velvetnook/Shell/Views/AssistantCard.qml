// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How much of one limit is used; where a tool tells no limit, how much it has used.
Rectangle {
    id: root

    required property var card

    implicitWidth: 193
    implicitHeight: 98
    radius: Theme.radius.card
    color: Theme.color.bg1
    Accessible.role: Accessible.Grouping
    Accessible.name: card.spoken

    Txt {
        anchors.left: parent.left
        anchors.right: span.left
        anchors.leftMargin: 14
        anchors.rightMargin: 8
        y: 12
        role: "label"
        text: root.card.title
        color: Theme.color.text2
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    Txt {
        id: span

        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 13
        role: "caption"
        text: root.card.span
        color: Theme.color.text3
        Accessible.ignored: true
    }
    Txt {
        id: figure

        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 34
        role: "numeral"
        pixelSize: 30
        lineHeight: 34
        text: root.card.figure
        Accessible.ignored: true
    }
    Txt {
        id: unit

        anchors.left: figure.right
        anchors.leftMargin: 4
        anchors.baseline: figure.baseline
        role: "label"
        text: root.card.unit
        color: Theme.color.text2
        Accessible.ignored: true
    }
    Txt {
        anchors.left: unit.right
        anchors.leftMargin: 8
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.baseline: figure.baseline
        role: "note"
        text: root.card.note
        color: Theme.color.text3
        horizontalAlignment: LayoutMirroring.enabled ? Text.AlignLeft : Text.AlignRight
        Accessible.ignored: true
    }
    ProgressBar4 {
        visible: root.card.value >= 0
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 14
        y: 77
        value: root.card.value
        fill: root.card.isHigh ? Theme.color.warn : Theme.color.accent
        name: root.card.spoken
    }
    Txt {
        visible: text !== ""
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 14
        y: 72
        role: "caption"
        text: root.card.foot
        color: Theme.color.text3
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
}
