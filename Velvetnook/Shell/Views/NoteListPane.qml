// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The list of notes with its search. Arrows open the one above or below.
FocusScope {
    id: root

    signal openWanted
    signal createWanted

    readonly property QtObject model: App.notes

    function search() {
        field.forceActiveFocus();
        field.selectAll();
    }
    function step(by) {
        const next = rows.itemAtIndex(rows.at + by);
        if (next) {
            model.choose(next.noteId);
            rows.positionViewAtIndex(rows.at, ListView.Contain);
        }
    }
    function act(event) {
        const isAlt = event.modifiers & Qt.AltModifier;
        const plain = event.modifiers === Qt.NoModifier;
        const by = event.key === Qt.Key_Up ? -1 : event.key === Qt.Key_Down ? 1 : 0;
        event.accepted = true;
        if (by !== 0) {
            if (isAlt) {
                model.move(model.current, by);
            } else {
                step(by);
            }
        } else if (plain && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)) {
            openWanted();
        } else if (plain && letters.keyOf(event) === Qt.Key_P) {
            model.setPinned(model.current, !model.isPinned);
        } else if (plain && event.key === Qt.Key_Delete) {
            model.remove(model.current);
        } else if (plain && event.key === Qt.Key_Slash) {
            search();
        } else {
            event.accepted = false;
        }
    }

    KeyLetters { id: letters }
    Field {
        id: field

        anchors.left: parent.left
        anchors.right: add.left
        anchors.rightMargin: 4
        iconName: "search"
        hint: qsTr("Search notes")
        text: root.model.query
        onEdited: text => root.model.query = text
        Keys.onDownPressed: rows.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEscapePressed: event => {
            event.accepted = root.model.query !== "";
            root.model.query = "";
        }
        onAccepted: rows.forceActiveFocus(Qt.TabFocusReason)
    }
    IconButton {
        id: add

        anchors.right: parent.right
        y: 2
        size: 30
        iconName: "plus"
        name: qsTr("New note")
        keyHint: "Ctrl N"
        onClicked: root.createWanted()
    }
    ListView {
        id: rows

        property int at: -1

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: field.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        clip: contentHeight > height
        spacing: 4
        boundsBehavior: Flickable.StopAtBounds
        focus: true
        activeFocusOnTab: true
        // The neighbours of what is seen are there for the arrows.
        cacheBuffer: 200
        model: root.model.list
        Keys.onPressed: event => root.act(event)
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Notes")

        delegate: NoteLine {
            width: ListView.view.width
            selected: root.model.current === noteId
            ringed: selected && rows.activeFocus
            movable: !scratchpad && root.model.query === ""
            onSelectedChanged: if (selected) { rows.at = index; }
            onIndexChanged: if (selected) { rows.at = index; }
            Component.onCompleted: if (selected) { rows.at = index; }
            onClicked: {
                root.model.choose(noteId);
                rows.forceActiveFocus();
            }
            onDoubleClicked: root.openWanted()
            onMoved: lines => root.model.move(noteId, lines)
        }
    }
    Txt {
        visible: text !== ""
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: field.bottom
        anchors.margins: 12
        role: "note"
        color: Theme.color.text3
        wrapMode: Text.Wrap
        text: root.model.findings
    }
}
