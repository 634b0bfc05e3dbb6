// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One application and what it takes.
T.AbstractButton {
    id: root

    required property string rowId
    required property string title
    required property int tint
    required property string cpu
    required property string memory
    required property real share
    required property bool isHot
    required property string spoken
    property bool ringed: false

    readonly property var tints: ["#D9B38C", "#E3A48B", "#9DBFD9", "#B8B2E0", "#A6C8A0"]

    height: 32
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.ListItem
    Accessible.name: spoken
    Accessible.onPressAction: clicked()

    background: Rectangle {
        x: -6
        width: parent.width + 12
        radius: 8
        color: root.down ? Theme.color.bg3 : root.hovered ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
        FocusRing {
            shown: root.ringed
            corner: 8
            isInner: true
        }
    }
    contentItem: Item {
        Rectangle {
            id: tile

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 20
            height: 20
            radius: 6
            color: root.tints[root.tint]

            Txt {
                anchors.centerIn: parent
                role: "caption"
                font.weight: Font.Bold
                color: "#0B0D0C"
                text: root.title.charAt(0).toUpperCase()
                Accessible.ignored: true
            }
        }
        Txt {
            anchors.left: tile.right
            anchors.leftMargin: 10
            anchors.right: bar.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignLeft // at the edge of the layout's start
            role: "strong"
            text: root.title
            Accessible.ignored: true
        }
        ProgressBar4 {
            id: bar

            anchors.right: load.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: 52
            value: Math.max(root.share, 0.02)
            fill: root.isHot ? Theme.color.warn : Theme.color.accent
            Accessible.ignored: true
        }
        Txt {
            id: load

            anchors.right: size.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: 44
            horizontalAlignment: Text.AlignRight
            role: "label"
            elide: Text.ElideNone
            text: root.cpu
            color: root.isHot ? Theme.color.warn : Theme.color.text1
            Accessible.ignored: true
        }
        Txt {
            id: size

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            width: 54
            horizontalAlignment: Text.AlignRight
            role: "label"
            font.weight: Font.Normal
            elide: Text.ElideNone
            text: root.memory
            color: Theme.color.text3
            Accessible.ignored: true
        }
    }
}
