// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The Names, the phrases and the favourites among these: a list to search, and one card.
Item {
    id: root

    readonly property Item mainItem: list
    readonly property string footerText: App.names.position
    readonly property var footerKeys: {
        const browse = {key: "↑↓", text: qsTr("browse")};
        const pin = {key: "P", text: qsTr("pin to notch")};
        const search = {key: "/", text: qsTr("search")};
        return App.names.isName
             ? [browse, pin, search]
             : [browse, {key: qsTr("Enter"), text: qsTr("count")},
                {key: "S", text: qsTr("favourite")}, pin, search];
    }

    function count() {
        if (!App.names.isName) {
            App.names.selectForCounter();
            App.panel.openTool("dhikr");
        }
    }
    function take(event) {
        const key = letters.keyOf(event);
        if (letters.isHeld(event)) {
            return true;
        }
        const forwards = LayoutMirroring.enabled ? Qt.Key_Left : Qt.Key_Right;
        const backwards = LayoutMirroring.enabled ? Qt.Key_Right : Qt.Key_Left;
        if (event.key === Qt.Key_Down || event.key === forwards) {
            App.names.move(1);
        } else if (event.key === Qt.Key_Up || event.key === backwards) {
            App.names.move(-1);
        } else if (event.key === Qt.Key_PageDown || event.key === Qt.Key_PageUp) {
            App.names.move(event.key === Qt.Key_PageDown ? 4 : -4);
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            App.names.move(event.key === Qt.Key_End ? 1000 : -1000);
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            root.count();
        } else if (key === Qt.Key_S) {
            App.names.toggleFavourite();
        } else if (key === Qt.Key_P) {
            App.names.togglePin();
        } else if (event.key === Qt.Key_Slash) {
            search.forceActiveFocus(Qt.ShortcutFocusReason);
        } else {
            return false;
        }
        return true;
    }

    KeyLetters { id: letters }

    implicitWidth: 600
    implicitHeight: 220
    Component.onCompleted: App.names.openTool(App.panel.tool)
    Connections {
        target: App.panel
        function onToolChanged() { App.names.openTool(App.panel.tool); }
    }
    Keys.onPressed: event => {
        const isVertical = event.key === Qt.Key_Up || event.key === Qt.Key_Down;
        const isPlain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier));
        if (isPlain && (!search.activeFocus || isVertical)) {
            event.accepted = root.take(event);
        }
    }

    Item {
        anchors.left: parent.left
        width: 226
        height: parent.height

        Field {
            id: search

            width: parent.width
            iconName: "search"
            hint: App.names.searchHint
            text: App.names.query
            onEdited: text => App.names.query = text
            onAccepted: list.forceActiveFocus(Qt.OtherFocusReason)
            Keys.onEscapePressed: event => {
                event.accepted = App.names.query !== "";
                App.names.query = "";
                text = "";
            }
        }
        NamesTabs {
            y: 42
            anchors.left: parent.left
        }
        NamesList {
            id: list

            y: 76
            width: parent.width
            height: parent.height - 76
        }
    }
    NameCard {
        anchors.right: parent.right
        width: parent.width - 242
        height: parent.height
        onCountWanted: root.count()
    }
    Connections {
        target: App.names
        function onListChanged() {
            if (search.text !== App.names.query) {
                search.text = App.names.query;
            }
        }
    }
}
