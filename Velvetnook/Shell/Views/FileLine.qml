// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One file of the list. It can be carried to another program.
T.ItemDelegate {
    id: root

    required property int index
    required property string path
    required property string title
    required property string note
    required property string when
    required property string family
    required property string badge
    required property string preview
    required property var dragData
    required property bool isPinned
    property bool selected: false

    readonly property bool isMissing: family === "missing"

    signal opened
    signal pinToggled
    signal menuWanted(real x, real y)

    implicitHeight: 44
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Drag.dragType: Drag.Automatic
    Drag.supportedActions: Qt.CopyAction
    Drag.mimeData: dragData
    Accessible.name: title
    Accessible.description: note
    Accessible.selected: selected
    Accessible.onPressAction: opened()
    onDoubleClicked: opened()
    onPressed: tile.grabToImage(result => root.Drag.imageSource = result.url)

    contentItem: Item {
        FileTile {
            id: tile

            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 32
            height: 32
            small: true
            family: root.family
            badge: root.badge
            preview: root.preview
        }
        Txt {
            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: tail.left
            anchors.rightMargin: 12
            y: 4
            role: "strong"
            lineHeight: 18
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideMiddle
            color: root.isMissing ? Theme.color.text3 : Theme.color.text1
            text: root.title
            Accessible.ignored: true
        }
        Txt {
            anchors.left: tile.right
            anchors.leftMargin: 12
            anchors.right: tail.left
            anchors.rightMargin: 12
            y: 22
            role: "note"
            lineHeight: 16
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideMiddle
            color: root.isMissing ? Theme.color.warn : Theme.color.text3
            text: root.note
            Accessible.ignored: true
        }
        Row {
            id: tail

            anchors.right: parent.right
            anchors.rightMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            spacing: 6
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                role: "note"
                color: Theme.color.text3
                text: root.when
                Accessible.ignored: true
            }
            IconButton {
                visible: root.isPinned || root.selected || root.hovered
                size: 28
                iconSize: 15
                iconName: "pin"
                ink: root.isPinned ? Theme.color.accent : Theme.color.text2
                name: root.isPinned ? qsTr("Unpin %1").arg(root.title) : qsTr("Pin %1").arg(root.title)
                tip: root.isPinned ? qsTr("Unpin") : qsTr("Pin")
                keyHint: "P"
                focusPolicy: Qt.NoFocus
                onClicked: root.pinToggled()
            }
            Item {
                visible: !(root.isPinned || root.selected || root.hovered)
                width: 28
                height: 28
            }
        }
    }
    background: Rectangle {
        radius: 12
        color: root.selected ? Theme.color.soft2 : root.down ? Theme.color.bg3
             : root.hovered ? Theme.color.bg1 : "transparent"
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: event => {
            root.clicked();
            root.menuWanted(event.position.x, event.position.y);
        }
    }
    DragHandler {
        id: carrying

        target: null
        // No binding: what it starts lasts until the other program has it.
        onActiveChanged: root.Drag.active = active && !root.isMissing
    }
}
