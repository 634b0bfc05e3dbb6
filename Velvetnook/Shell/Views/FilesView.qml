// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The files and folders that the user comes back to.
FocusScope {
    id: root

    readonly property QtObject model: App.files
    readonly property Item mainItem: rows
    readonly property string footerText: model.footer
    readonly property var footerKeys: [{key: qsTr("Enter"), text: qsTr("open")},
                                       {key: "R", text: qsTr("folder")},
                                       {key: "P", text: qsTr("pin")}]

    function act(event) {
        const row = rows.currentItem;
        const isCommand = event.modifiers & Qt.ControlModifier;
        const isAlt = event.modifiers & Qt.AltModifier;
        const key = letters.keyOf(event);
        event.accepted = true;
        if ((isCommand && key === Qt.Key_F) || (rows.activeFocus && key === Qt.Key_Slash)) {
            field.forceActiveFocus();
            field.selectAll();
        } else if (rows.activeFocus && (key === Qt.Key_Left || key === Qt.Key_Right)) {
            model.section = model.section === "recent" ? "pinned" : "recent";
        } else if (!rows.activeFocus || !row) {
            event.accepted = false;
        } else if (isAlt && (key === Qt.Key_Up || key === Qt.Key_Down)) {
            model.move(row.path, key === Qt.Key_Up ? -1 : 1);
        } else if (key === Qt.Key_Return || key === Qt.Key_Enter) {
            model.open(row.path);
        } else if (key === Qt.Key_Space) {
            look(row);
        } else if (isCommand && key === Qt.Key_C) {
            model.copyPath(row.path);
        } else if (key === Qt.Key_P && !isCommand) {
            model.setPinned(row.path, !row.isPinned);
        } else if (key === Qt.Key_Delete && row.isPinned) {
            model.setPinned(row.path, false);
        } else if (key === Qt.Key_R && !isCommand) {
            model.reveal(row.path);
        } else if (event.key === Qt.Key_Menu || (event.key === Qt.Key_F10
                                                 && event.modifiers & Qt.ShiftModifier)) {
            showMenu(row, 60, 20);
        } else {
            event.accepted = false;
        }
    }
    function look(row) {
        closer.show({title: row.title, note: row.note, family: row.family, badge: row.badge,
                     preview: row.preview, words: ""});
    }
    function showMenu(row, x, y) {
        const at = row.mapToItem(root, x, y);
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
    Field {
        id: field

        anchors.left: parent.left
        width: 200
        iconName: "search"
        hint: qsTr("Search files")
        text: root.model.query
        onEdited: text => root.model.query = text
        onAccepted: rows.forceActiveFocus(Qt.TabFocusReason)
        Keys.onDownPressed: rows.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEscapePressed: event => {
            event.accepted = root.model.query !== "";
            root.model.query = "";
        }
    }
    Row {
        anchors.right: parent.right
        y: 2
        spacing: 6
        Chip {
            text: qsTr("Recent")
            iconName: "history"
            chosen: root.model.section === "recent"
            onClicked: root.model.section = "recent"
        }
        Chip {
            text: qsTr("Pinned")
            iconName: "pin"
            chosen: root.model.section === "pinned"
            onClicked: root.model.section = "pinned"
        }
    }
    ListView {
        id: rows

        anchors.fill: parent
        anchors.topMargin: 42
        visible: !closer.visible
        focus: true
        activeFocusOnTab: true
        interactive: false // a row that is pulled goes to another program
        clip: contentHeight > height
        model: root.model.list
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Files")

        delegate: FileLine {
            width: ListView.view.width
            selected: ListView.isCurrentItem && rows.activeFocus
            onClicked: {
                rows.currentIndex = index;
                rows.forceActiveFocus();
            }
            onOpened: root.model.open(path)
            onPinToggled: root.model.setPinned(path, !isPinned)
            onMenuWanted: (x, y) => root.showMenu(this, x, y)
        }
    }
    WheelHandler {
        onWheel: event => {
            const room = Math.max(0, rows.contentHeight - rows.height);
            rows.contentY = Math.max(0, Math.min(room, rows.contentY - event.angleDelta.y / 2));
        }
    }
    AvailabilityView {
        anchors.fill: rows
        visible: root.model.availability !== "ready"
        availability: root.model.availability
        iconName: availability === "empty" ? "files" : ""
        message: root.model.message
        note: root.model.note
        primaryText: availability === "error" ? qsTr("Try again") : ""
        onPrimary: root.model.lookAgain()
    }
    DropArea {
        id: drop

        anchors.fill: parent
        onEntered: drag => drag.accepted = drag.source === null && drag.hasUrls
        onDropped: event => {
            event.accept(Qt.CopyAction);
            root.model.pinUrls(event.urls);
            root.model.section = "pinned";
        }
        DashedFrame {
            anchors.fill: parent
            visible: drop.containsDrag
            line: Theme.color.accent
        }
    }
    PopupMenu {
        id: menu

        readonly property var row: rows.currentItem

        items: [{text: qsTr("Open"), iconName: "out", key: qsTr("Enter")},
                {text: qsTr("Preview"), iconName: "image", key: qsTr("Space")},
                {text: qsTr("Show in its folder"), iconName: "files", key: "R"},
                {text: qsTr("Copy the path"), iconName: "copy", key: "Ctrl C"},
                {text: row && row.isPinned ? qsTr("Unpin") : qsTr("Pin"), iconName: "pin", key: "P"}]
        onChosen: index => {
            const path = row.path;
            [() => root.model.open(path), () => root.look(row), () => root.model.reveal(path),
             () => root.model.copyPath(path),
             () => root.model.setPinned(path, !row.isPinned)][index]();
        }
    }
    FilePreview { id: closer }
}
