// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The shelf: what is put down for a moment, to be picked up elsewhere.
FocusScope {
    id: root

    readonly property QtObject model: App.shelf
    readonly property Item mainItem: grid
    readonly property string footerText: model.footer
    readonly property var footerKeys: model.count === 0
        ? [{key: "Ctrl V", text: qsTr("paste")}]
        : [{key: qsTr("Enter"), text: qsTr("open")}, {key: qsTr("Space"), text: qsTr("preview")},
           {key: qsTr("Del"), text: qsTr("take off shelf")}]

    property string edited

    function act(event) {
        const card = grid.currentItem;
        const isCommand = event.modifiers & Qt.ControlModifier;
        const key = letters.keyOf(event);
        event.accepted = true;
        if (isCommand && key === Qt.Key_V) {
            if (!model.paste()) {
                App.panel.showMessage(qsTr("There is nothing to paste"));
            }
        } else if (!card || root.edited !== "") {
            event.accepted = false;
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            model.open(card.shelfId);
        } else if (event.key === Qt.Key_Space) {
            look(card);
        } else if (event.key === Qt.Key_Delete && event.modifiers & Qt.ShiftModifier) {
            question.open();
        } else if (event.key === Qt.Key_Delete) {
            model.remove(card.shelfId);
        } else if (event.key === Qt.Key_F2) {
            edited = card.shelfId;
        } else if (isCommand && key === Qt.Key_C) {
            model.copy(card.shelfId);
        } else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10
                                                 && event.modifiers & Qt.ShiftModifier)) {
            showMenu(card, 24, 40);
        } else {
            event.accepted = false;
        }
    }
    function look(card) {
        closer.show({title: card.title, note: card.note, family: card.family, badge: card.badge,
                     preview: card.preview,
                     words: card.words === "" ? "" : model.textOf(card.shelfId)});
    }
    function showMenu(card, x, y) {
        const at = card.mapToItem(root, x, y);
        menu.popup(at.x, at.y);
    }

    implicitWidth: 600
    implicitHeight: 220
    Keys.onPressed: event => root.act(event)
    Binding {
        target: root.model
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    Component.onDestruction: model.isShown = false

    KeyLetters { id: letters }
    GridView {
        id: grid

        anchors.fill: parent
        anchors.rightMargin: -12
        visible: root.model.count > 0 && !closer.visible
        focus: true
        activeFocusOnTab: true
        keyNavigationEnabled: true
        interactive: false // a card that is pulled goes to another program
        clip: contentHeight + bottomMargin > height
        cellWidth: 153
        cellHeight: 144
        model: root.model.list
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Shelf")

        delegate: Item {
            id: cell

            required property int index
            required property string shelfId
            required property string title
            required property string note
            required property string family
            required property string badge
            required property string preview
            required property string words
            required property string path
            required property var dragData

            width: 153
            height: 144
            ShelfCard {
                x: LayoutMirroring.enabled ? 12 : 0
                width: 141
                height: 132
                shelfId: cell.shelfId
                title: cell.title
                note: cell.note
                family: cell.family
                badge: cell.badge
                preview: cell.preview
                words: cell.words
                path: cell.path
                dragData: cell.dragData
                selected: cell.GridView.isCurrentItem
                editing: root.edited === shelfId
                onChosen: {
                    grid.currentIndex = cell.index;
                    grid.forceActiveFocus();
                }
                onOpened: root.model.open(shelfId)
                onMenuWanted: (x, y) => root.showMenu(this, x, y)
                onRenamed: title => root.model.rename(shelfId, title)
                onEditEnded: {
                    root.edited = "";
                    grid.forceActiveFocus();
                }
            }
        }
        bottomMargin: 76

        ShelfDropZone {
            parent: grid.contentItem
            x: LayoutMirroring.enabled ? 12 : 0
            y: grid.contentHeight
            width: 600
            height: 76
            isTarget: drop.containsDrag
        }
    }
    WheelHandler {
        onWheel: event => {
            const room = Math.max(0, grid.contentHeight + grid.bottomMargin - grid.height);
            grid.contentY = Math.max(0, Math.min(room, grid.contentY - event.angleDelta.y / 2));
        }
    }
    ShelfDropZone {
        anchors.fill: parent
        visible: root.model.count === 0
        isAlone: true
        isTarget: drop.containsDrag
    }
    DropArea {
        id: drop

        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.source === null
        onDropped: event => {
            const picture = event.formats.includes("image/png") && !event.hasUrls
                ? event.getDataAsArrayBuffer("image/png") : new ArrayBuffer(0);
            if (event.source === null && root.model.take(event.urls, event.text, picture)) {
                event.accept(Qt.CopyAction);
            }
        }
    }
    PopupMenu {
        id: menu

        readonly property var card: grid.currentItem
        readonly property bool hasFile: card !== null && card.path !== ""

        items: [{text: qsTr("Open"), iconName: "out", key: qsTr("Enter")},
                {text: qsTr("Preview"), iconName: "image", key: qsTr("Space")},
                {text: qsTr("Show in its folder"), iconName: "files", enabled: hasFile},
                {text: qsTr("Copy"), iconName: "copy", key: "Ctrl C"},
                {text: qsTr("Rename"), iconName: "scratchpad", key: "F2"},
                {text: qsTr("Take off shelf"), iconName: "x", key: qsTr("Del")},
                {separator: true},
                {text: qsTr("Clear the shelf…"), iconName: "trash", key: "⇧ " + qsTr("Del")}]
        onChosen: index => {
            const id = card.shelfId;
            [() => root.model.open(id), () => root.look(card), () => root.model.reveal(id),
             () => root.model.copy(id), () => root.edited = id, () => root.model.remove(id),
             () => {}, () => question.open()][index]();
        }
    }
    AskDialog {
        id: question

        title: qsTr("Take everything off the shelf?")
        body: qsTr("Your files stay where they are.")
        acceptText: qsTr("Clear")
        cancelText: qsTr("Keep")
        dangerous: true
        onAccepted: root.model.clear()
    }
    FilePreview { id: closer }
}
