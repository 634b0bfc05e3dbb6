// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The notes and the scratchpad: a list with a search, and the open one to write in.
FocusScope {
    id: root

    readonly property QtObject model: App.notes
    readonly property Item mainItem: App.panel.tool === "notes" ? list : editor
    readonly property string footerText: model.footer
    readonly property var footerKeys: [{key: "Ctrl N", text: qsTr("new note")},
                                       {key: "Ctrl F", text: qsTr("find")}]

    function follow() {
        if (App.panel.tool === "scratchpad") {
            model.chooseScratchpad();
        }
    }

    implicitWidth: 600
    implicitHeight: 220
    onVisibleChanged: if (!visible) { model.leave(); }
    Component.onDestruction: model.leave()
    Component.onCompleted: follow()
    Keys.onPressed: event => {
        const isCommand = event.modifiers & Qt.ControlModifier;
        if (isCommand && event.key === Qt.Key_N) {
            model.create();
            editor.forceActiveFocus();
            event.accepted = true;
        } else if (isCommand && event.key === Qt.Key_F) {
            list.search();
            event.accepted = true;
        }
    }

    NoteListPane {
        id: list

        anchors.left: parent.left
        width: 196
        height: parent.height
        focus: true
        onOpenWanted: editor.forceActiveFocus()
        onCreateWanted: {
            root.model.create();
            editor.forceActiveFocus();
        }
    }
    NoteEditor {
        id: editor

        anchors.left: list.right
        anchors.leftMargin: 16
        anchors.right: parent.right
        height: parent.height
    }
    Connections {
        target: App.panel
        function onToolChanged() { root.follow(); }
    }
}
