// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One thing on the shelf. It can be carried to another program.
Item {
    id: root

    required property string shelfId
    required property string title
    required property string note
    required property string family
    required property string badge
    required property string preview
    required property string words
    required property string path
    required property var dragData
    property bool selected: false
    property bool editing: false

    readonly property bool isMissing: family === "missing"

    signal chosen
    signal opened
    signal menuWanted(real x, real y)
    signal renamed(string title)
    signal editEnded

    Drag.dragType: Drag.Automatic
    Drag.supportedActions: Qt.CopyAction
    Drag.mimeData: dragData
    Accessible.role: Accessible.ListItem
    Accessible.name: title
    Accessible.description: note
    Accessible.selected: selected
    Accessible.onPressAction: opened()
    onEditingChanged: {
        if (editing) {
            field.text = title;
            field.forceActiveFocus();
            field.selectAll();
        } else {
            field.focus = false; // else the list would give it the keys again
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 16
        color: root.selected ? Theme.color.soft : area.hovered ? Theme.color.bg2 : Theme.color.bg1
        border.width: root.selected ? Theme.outline : 0
        border.color: Theme.color.accent
    }
    FileTile {
        x: 12
        y: 12
        width: parent.width - 24
        height: 66
        family: root.family
        badge: root.badge
        preview: root.preview
        words: root.words
        opacity: root.isMissing ? 0.7 : 1
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 6
        y: 86
        visible: !root.editing
        role: "strong"
        lineHeight: 18
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideMiddle
        color: root.isMissing ? Theme.color.text3 : Theme.color.text1
        text: root.title
        Accessible.ignored: true
    }
    Txt {
        x: 12
        y: 104
        width: parent.width - 24
        visible: !root.editing
        role: "caption"
        lineHeight: 16
        horizontalAlignment: Text.AlignLeft
        color: root.isMissing ? Theme.color.warn : Theme.color.text3
        text: root.note
        Accessible.ignored: true
    }
    Field {
        id: field

        x: 8
        y: 88
        width: parent.width - 16
        fieldHeight: 32
        visible: root.editing
        name: qsTr("Name on the shelf")
        onAccepted: {
            root.renamed(text);
            root.editEnded();
        }
        Keys.onEscapePressed: root.editEnded()
        onActiveFocusChanged: if (!activeFocus && root.editing) { root.editEnded(); }
    }
    HoverHandler { id: area }
    TapHandler {
        acceptedButtons: Qt.LeftButton
        onPressedChanged: {
            if (pressed) {
                root.chosen();
                root.grabToImage(result => root.Drag.imageSource = result.url);
            }
        }
        onDoubleTapped: root.opened()
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: event => {
            root.chosen();
            root.menuWanted(event.position.x, event.position.y);
        }
    }
    DragHandler {
        id: carrying

        target: null
        enabled: !root.editing
        // No binding: what it starts lasts until the other program has it.
        onActiveChanged: root.Drag.active = active && !root.isMissing
    }
}
