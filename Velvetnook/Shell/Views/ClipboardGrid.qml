// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The cards of the history. Arrows choose one, a letter does something with it.
FocusScope {
    id: root

    signal searchWanted

    readonly property QtObject model: App.clipboard
    readonly property string chosen: cards.currentItem ? cards.currentItem.entryId : ""
    property var items: []
    property var deeds: []

    function begin() { cards.currentIndex = 0; }
    function use() { if (chosen !== "") { model.use(chosen); } }
    function copy() { if (chosen !== "") { model.copy(chosen); } }
    function openMenu(x, y) {
        if (chosen === "") {
            return;
        }
        const isFavourite = cards.currentItem.favourite;
        const steps = [
            {text: qsTr("Copy"), iconName: "copy", key: "Ctrl C", run: copy},
            {text: isFavourite ? qsTr("No longer a favourite") : qsTr("Favourite"),
             iconName: "star", key: "S", run: () => model.toggleFavourite(chosen)},
            {text: qsTr("Remove"), iconName: "trash", key: qsTr("Del"),
             run: () => model.remove(chosen)},
            {separator: true},
            {text: qsTr("Remove all but favourites…"), iconName: "trash", run: () => ask.open()}];
        if (model.pastes) {
            steps.unshift({text: qsTr("Paste"), iconName: "enter", key: qsTr("Enter"), run: use});
        }
        deeds = steps;
        items = steps.map(step => ({text: step.text, iconName: step.iconName, key: step.key,
                                    separator: step.separator}));
        menu.popup(x, y);
    }
    function act(event) {
        const key = letters.keyOf(event);
        const isPlain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier
                                             | Qt.MetaModifier));
        event.accepted = true;
        if ((event.modifiers & Qt.ControlModifier) && key === Qt.Key_C) {
            copy();
        } else if (event.key === Qt.Key_Menu
                   || (event.key === Qt.Key_F10 && (event.modifiers & Qt.ShiftModifier))) {
            openMenu(cards.currentItem.x, cards.currentItem.y - cards.contentY + 40);
        } else if (!isPlain || letters.isHeld(event)) {
            event.accepted = false;
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            use();
        } else if (key === Qt.Key_S) {
            model.toggleFavourite(chosen);
        } else if (event.key === Qt.Key_Delete) {
            model.remove(chosen);
        } else if (event.key === Qt.Key_Slash) {
            searchWanted();
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            cards.currentIndex = event.key === Qt.Key_Home ? 0 : cards.count - 1;
        } else {
            event.accepted = false;
        }
    }

    KeyLetters { id: letters }
    GridView {
        id: cards

        width: parent.width + 10
        x: LayoutMirroring.enabled ? -10 : 0
        height: parent.height + 6
        focus: true
        activeFocusOnTab: true
        cellWidth: 203
        cellHeight: 92
        cacheBuffer: 0
        clip: contentHeight > height + 10
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: true
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        currentIndex: 0
        model: root.model.list
        Keys.onPressed: event => root.act(event)
        onCountChanged: {
            if (currentIndex < 0 && count > 0) {
                currentIndex = 0;
            }
        }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("What was copied")

        delegate: ClipboardCard {
            width: cards.cellWidth
            height: cards.cellHeight
            selected: GridView.isCurrentItem
            onClicked: {
                cards.currentIndex = index;
                cards.forceActiveFocus(Qt.MouseFocusReason);
            }
            onDoubleClicked: root.copy()
            onMenuWanted: (x, y) => {
                const at = mapToItem(root, x, y);
                root.openMenu(at.x, at.y);
            }
        }
    }
    PopupMenu {
        id: menu

        items: root.items
        onChosen: index => root.deeds[index].run()
    }
    AskDialog {
        id: ask

        title: qsTr("Remove all but the favourites?")
        body: qsTr("What was copied goes for good. It cannot be brought back.")
        acceptText: qsTr("Remove all")
        cancelText: qsTr("Keep")
        dangerous: true
        corner: 26
        onAccepted: root.model.clear()
    }
}
