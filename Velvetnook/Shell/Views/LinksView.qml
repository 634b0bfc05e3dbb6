// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The user's own bookmarks, and why there is no collection beside them.
FocusScope {
    id: root

    readonly property QtObject model: App.links
    readonly property Item mainItem: rows
    readonly property string footerText: model.footer
    readonly property var footerKeys: [{key: qsTr("Enter"), text: qsTr("open")},
                                       {key: "Ctrl N", text: qsTr("add")},
                                       {key: qsTr("Del"), text: qsTr("remove")}]

    property bool isWriting: false
    property bool isSearching: model.query !== ""

    function write(id, address, title, note) {
        isWriting = true;
        form.begin(id, address, title, note);
    }
    function edit(row) {
        write(row.linkId, row.url, row.title === row.host ? "" : row.title, row.note);
    }
    function add() {
        write("", model.heldAddress(), "", "");
    }
    function search() {
        isSearching = true;
        field.forceActiveFocus();
    }
    function act(event) {
        const row = rows.currentItem;
        const isCommand = event.modifiers & Qt.ControlModifier;
        const isAlt = event.modifiers & Qt.AltModifier;
        const key = letters.keyOf(event);
        event.accepted = true;
        if (isCommand && key === Qt.Key_N) {
            add();
        } else if ((isCommand && key === Qt.Key_F) || (rows.activeFocus && key === Qt.Key_Slash)) {
            search();
        } else if (!rows.activeFocus || !row) {
            event.accepted = false;
        } else if (isAlt && (key === Qt.Key_Up || key === Qt.Key_Down)) {
            model.move(row.linkId, key === Qt.Key_Up ? -1 : 1);
        } else if (key === Qt.Key_Return || key === Qt.Key_Enter) {
            model.open(row.linkId);
        } else if (key === Qt.Key_Delete) {
            model.remove(row.linkId);
        } else if (isCommand && key === Qt.Key_C) {
            model.copy(row.linkId);
        } else if (key === Qt.Key_F2 || key === Qt.Key_E) {
            edit(row);
        } else {
            event.accepted = false;
        }
    }

    implicitWidth: 600
    implicitHeight: 220
    Keys.onPressed: event => root.act(event)

    KeyLetters { id: letters }
    LinkNotice {
        anchors.left: parent.left
        width: 232
        height: parent.height
    }
    Card {
        anchors.right: parent.right
        width: 348
        height: parent.height
        corner: 18
        padding: 0

        Txt {
            y: 14
            width: 220
            anchors.left: parent.left
            anchors.leftMargin: 16
            horizontalAlignment: Text.AlignLeft
            role: "heading"
            text: root.isWriting && form.linkId !== "" ? qsTr("Change the bookmark")
                : root.isWriting ? qsTr("New bookmark") : qsTr("Your dua bookmarks")
        }
        Row {
            anchors.right: parent.right
            anchors.rightMargin: 14
            y: 12
            spacing: 4
            visible: !root.isWriting
            IconButton {
                visible: root.model.count > 3
                size: 30
                iconName: "search"
                name: qsTr("Find a bookmark")
                keyHint: "Ctrl F"
                onClicked: root.search()
            }
            IconButton {
                size: 30
                filled: true
                iconName: "plus"
                name: qsTr("Add a bookmark")
                keyHint: "Ctrl N"
                onClicked: root.add()
            }
        }
        LinkForm {
            id: form

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 16
            y: 48
            visible: root.isWriting
            onDone: {
                root.isWriting = false;
                rows.forceActiveFocus();
            }
        }
        Txt {
            id: words

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 16
            anchors.rightMargin: 44
            y: 40
            visible: !root.isWriting && !root.isSearching
            role: "note"
            lineHeight: 17
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            color: Theme.color.text3
            text: qsTr("Save a link to a source you choose. Personal bookmarks are not a reviewed Velvetnook collection.")
        }
        Field {
            id: field

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: 14
            y: 48
            visible: !root.isWriting && root.isSearching
            iconName: "search"
            hint: qsTr("Search bookmarks")
            text: root.model.query
            onEdited: text => root.model.query = text
            onAccepted: rows.forceActiveFocus(Qt.TabFocusReason)
            Keys.onDownPressed: rows.forceActiveFocus(Qt.TabFocusReason)
            Keys.onEscapePressed: {
                root.model.query = "";
                root.isSearching = false;
                rows.forceActiveFocus();
            }
        }
        ListView {
            id: rows

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 8
            anchors.rightMargin: 8
            y: root.isSearching ? 90 : words.y + words.implicitHeight + 6
            height: parent.height - y - 6
            visible: !root.isWriting
            focus: true
            activeFocusOnTab: true
            clip: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds
            model: root.model.list
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Bookmarks")

            delegate: LinkLine {
                width: ListView.view.width
                selected: ListView.isCurrentItem && rows.activeFocus
                movable: root.model.query === ""
                onClicked: {
                    rows.currentIndex = index;
                    rows.forceActiveFocus();
                }
                onDoubleClicked: root.model.open(linkId)
                onOpened: root.model.open(linkId)
                onMoved: lines => root.model.move(linkId, lines)
            }
        }
        Txt {
            visible: !root.isWriting && root.model.found === 0
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 16
            anchors.rightMargin: 16
            y: rows.y + 12
            role: "note"
            color: Theme.color.text3
            wrapMode: Text.Wrap
            text: root.model.count > 0 ? qsTr("No bookmark has these words")
                                       : qsTr("Nothing saved yet. Add one, or drop a link here.")
        }
        DropArea {
            id: drop

            anchors.fill: parent
            onDropped: event => {
                const address = event.hasUrls ? event.urls[0].toString() : event.text.trim();
                if (address.startsWith("https://")) {
                    event.accept(Qt.CopyAction);
                    root.write("", address, "", "");
                }
            }
        }
    }
}
