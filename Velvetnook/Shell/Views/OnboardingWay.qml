// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One way into the program.
Rectangle {
    id: root

    property string iconName
    property string title
    property string note
    property var keys: []

    height: 166
    radius: Theme.radius.cardLarge
    color: Theme.color.bg1

    Column {
        x: 16
        y: 18
        width: parent.width - 32
        Icon {
            anchors.left: parent.left
            name: root.iconName
            size: 24
            color: Theme.color.accent
        }
        Item { width: 1; height: 12 }
        Txt {
            width: parent.width
            role: "strong"
            font.weight: Font.DemiBold
            text: root.title
        }
        Txt {
            width: parent.width
            role: "note"
            color: Theme.color.text3
            wrapMode: Text.Wrap
            text: root.note
        }
    }
    Row {
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        spacing: 4
        Repeater {
            model: root.keys
            delegate: KeyCap {
                required property string modelData

                text: modelData
            }
        }
    }
}
