// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The line of the palette, which has the keyboard all the time.
FocusScope {
    id: root

    property int pageRows: 8

    function press(event) {
        const control = event.modifiers & Qt.ControlModifier;
        switch (event.key) {
        case Qt.Key_Up:
            return App.palette.move(-1);
        case Qt.Key_Down:
            return App.palette.move(1);
        case Qt.Key_PageUp:
            return App.palette.move(-root.pageRows);
        case Qt.Key_PageDown:
            return App.palette.move(root.pageRows);
        case Qt.Key_Home:
            return App.palette.moveToEnd(false);
        case Qt.Key_End:
            return App.palette.moveToEnd(true);
        case Qt.Key_Return:
        case Qt.Key_Enter:
            return control ? App.palette.activateOther() : App.palette.activate();
        case Qt.Key_Tab:
            return App.palette.showActions();
        case Qt.Key_Backtab:
            return App.palette.leaveActions();
        case Qt.Key_Escape:
            return App.palette.back() ? undefined : App.palette.closeWanted();
        }
        if (control && event.key >= Qt.Key_1 && event.key <= Qt.Key_9) {
            return App.palette.openTab(event.key - Qt.Key_0);
        }
        event.accepted = false;
    }

    implicitHeight: 60

    Icon {
        id: glass

        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        name: "search"
        size: 20
        color: Theme.color.text3
    }
    TextInput {
        id: input

        anchors.left: glass.right
        anchors.leftMargin: 14
        anchors.right: escapeKey.left
        anchors.rightMargin: 14
        // By the baseline: a script of another font makes the line higher, not lower.
        anchors.baseline: parent.verticalCenter
        anchors.baselineOffset: 6
        focus: true
        activeFocusOnTab: false
        text: App.palette.query
        font.family: Theme.familyOf("body")
        font.pixelSize: 18
        color: Theme.color.text1
        selectionColor: Theme.color.soft2
        selectedTextColor: Theme.color.text1
        selectByMouse: true
        clip: true
        maximumLength: 500
        horizontalAlignment: TextInput.AlignLeft
        cursorDelegate: Item {
            visible: input.cursorVisible
            width: 2

            Rectangle {
                y: input.baselineOffset - 17
                width: 2
                height: 22
                radius: 1
                color: Theme.color.accent
            }
        }
        onTextEdited: App.palette.query = text
        Keys.priority: Keys.BeforeItem
        Keys.onPressed: event => {
            event.accepted = true;
            root.press(event);
        }
        Accessible.role: Accessible.EditableText
        Accessible.name: qsTr("Search tools, phrases, units, emoji and notes")
        Accessible.searchEdit: true

        Connections {
            target: App.palette
            function onQueryChanged() {
                if (input.text !== App.palette.query) {
                    input.text = App.palette.query;
                }
            }
        }
    }
    Text {
        anchors.left: input.left
        anchors.right: input.right
        anchors.baseline: input.baseline
        anchors.leftMargin: 5
        anchors.rightMargin: 5
        visible: input.text === "" && input.preeditText === ""
        text: qsTr("Search tools, phrases, units, emoji and notes")
        font: input.font
        color: Theme.color.text3
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        Accessible.ignored: true
    }
    KeyCap {
        id: escapeKey

        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Esc")
    }
    Hairline {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
