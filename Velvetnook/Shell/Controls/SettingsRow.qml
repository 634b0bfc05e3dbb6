// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// One setting: its name, what it means, and the control at the trailing side.
Item {
    id: root

    property string title
    property string note
    property color noteColor: Theme.color.text3
    default property alias control: slot.data

    implicitWidth: parent ? parent.width : 480
    implicitHeight: Math.max(50, words.implicitHeight + 16, slot.implicitHeight + 16)

    Hairline {
        visible: !root.Positioner.isFirstItem
        width: parent.width
    }
    Column {
        id: words

        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: slot.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            text: root.title
            role: "strong"
            lineHeight: 18
            wrapMode: Text.Wrap
            color: root.enabled ? Theme.color.text1 : Theme.color.text4
        }
        Txt {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            text: root.note
            role: "note"
            lineHeight: 16
            wrapMode: Text.Wrap
            color: root.enabled ? root.noteColor : Theme.color.text4
        }
    }
    Row {
        id: slot

        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
    }
}
