// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One thing that the desktop gives in full, in part or not at all, and the way out.
Item {
    id: root

    required property int index
    required property string name
    required property string level // full, degraded, off
    required property string levelText
    required property string reason
    required property string wayOut

    readonly property color tone: level === "full" ? Theme.color.accent
                                : level === "off" ? Theme.color.danger : Theme.color.warn

    implicitWidth: parent ? parent.width : 480
    implicitHeight: Math.max(50, words.implicitHeight + 20)

    Hairline {
        visible: root.index > 0
        width: parent.width
    }
    Icon {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: 16
        y: 12
        name: root.level === "full" ? "check" : root.level === "off" ? "x" : "alert"
        size: 16
        color: root.tone
    }
    Column {
        id: words

        anchors.left: sign.right
        anchors.leftMargin: 12
        anchors.right: levelLabel.left
        anchors.rightMargin: 14
        y: 10
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            role: "strong"
            lineHeight: 18
            text: root.name
        }
        Txt {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            role: "note"
            color: Theme.color.text3
            wrapMode: Text.Wrap
            text: root.reason
        }
        Txt {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            role: "note"
            color: Theme.color.text2
            wrapMode: Text.Wrap
            text: root.wayOut
        }
    }
    Txt {
        id: levelLabel

        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 11
        role: "label"
        font.capitalization: Font.Capitalize
        color: root.level === "full" ? Theme.color.text2 : root.tone
        text: root.levelText
    }
}
