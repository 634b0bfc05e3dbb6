// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One bookmark of the list. It can be carried to another place.
ListRow {
    id: root

    required title
    required note
    required property int index
    required property string linkId
    required property string host
    required property string letter
    required property string url
    property bool movable: false

    signal moved(int lines)
    signal opened

    readonly property real carried: drag.active ? drag.translation.y : 0

    implicitHeight: 36
    leftPadding: 8
    rightPadding: 4
    z: drag.active ? 1 : 0
    opacity: drag.active ? 0.85 : 1
    transform: Translate { y: root.carried }
    focusPolicy: Qt.NoFocus
    Accessible.name: title
    Accessible.description: host

    contentItem: Item {
        Rectangle {
            id: tile

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            width: 22
            height: 22
            radius: 6
            color: root.selected ? Theme.color.soft : Theme.color.bg3
            Txt {
                anchors.centerIn: parent
                role: "caption"
                font.weight: Font.DemiBold
                color: root.selected ? Theme.color.accent : Theme.color.text2
                text: root.letter
            }
        }
        Txt {
            id: words

            anchors.left: tile.right
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - 100)
            role: "strong"
            font.weight: root.selected ? Font.DemiBold : Font.Medium
            text: root.title
            Accessible.ignored: true
        }
        Txt {
            anchors.left: words.right
            anchors.leftMargin: 10
            anchors.right: out.left
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            visible: root.host !== root.title
            role: "note"
            horizontalAlignment: Text.AlignLeft
            color: root.selected ? Theme.color.text2 : Theme.color.text3
            text: root.host
            Accessible.ignored: true
        }
        IconButton {
            id: out

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            size: 28
            iconSize: 15
            iconName: "out"
            name: qsTr("Open %1").arg(root.title)
            tip: qsTr("Open")
            keyHint: qsTr("Enter")
            focusPolicy: Qt.NoFocus
            onClicked: root.opened()
        }
    }
    DragHandler {
        id: drag

        property real last: 0

        enabled: root.movable
        target: null
        xAxis.enabled: false
        onTranslationChanged: {
            if (active) {
                last = translation.y;
            }
        }
        onActiveChanged: {
            const lines = Math.round(last / root.height);
            if (!active && lines !== 0) {
                root.moved(lines);
            }
            last = 0;
        }
    }
}
