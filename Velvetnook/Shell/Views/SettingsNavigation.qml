// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The pages of the settings in their groups, and a search among them. Arrows move along them.
FocusScope {
    id: root

    // Without the ring, which is for who has moved by keyboard.
    function begin() {
        const chosen = App.settings.pages.findIndex(each => each.page === App.settings.page);
        (rows.itemAt(chosen)?.row ?? search).forceActiveFocus(Qt.OtherFocusReason);
    }
    function step(from, by) {
        const next = rows.itemAt(from + by);
        if (next) {
            choose(next, Qt.TabFocusReason);
        }
    }
    // The focus first: the row that has it cannot cease to be a stop of Tab.
    function choose(slot, reason) {
        slot.row.forceActiveFocus(reason);
        App.settings.page = slot.modelData.page;
    }

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Pages")

    Field {
        id: search

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.rightMargin: 10
        fieldHeight: 32
        iconName: "search"
        hint: qsTr("Search settings")
        text: App.settings.query
        onEdited: text => App.settings.query = text
        Keys.onDownPressed: root.step(-1, 1)
        Keys.onEscapePressed: event => {
            event.accepted = text !== "";
            App.settings.query = "";
        }
        onAccepted: root.step(-1, 1)
    }
    Column {
        anchors.left: search.left
        anchors.right: search.right
        anchors.top: search.bottom
        anchors.topMargin: 8
        spacing: 2

        Repeater {
            id: rows

            model: App.settings.pages
            delegate: Item {
                id: slot

                required property var modelData
                required property int index

                property alias row: row
                readonly property bool isFirst: index > 0
                                                && App.settings.pages[index - 1].group !== modelData.group

                width: parent.width
                height: row.height + (isFirst ? 10 : 0)

                ListRow {
                    id: row

                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 31
                    title: slot.modelData.title
                    iconName: slot.modelData.icon
                    titleColor: Theme.color.text2
                    selected: App.settings.page === slot.modelData.page
                    // Tab goes to the chosen one, as among tabs.
                    focusPolicy: selected || slot.index === 0 ? Qt.TabFocus : Qt.NoFocus
                    Accessible.role: Accessible.PageTab
                    Keys.onUpPressed: root.step(slot.index, -1)
                    Keys.onDownPressed: root.step(slot.index, 1)
                    onClicked: root.choose(slot, Qt.MouseFocusReason)
                }
            }
        }
    }
    Txt {
        visible: rows.count === 0
        anchors.left: search.left
        anchors.leftMargin: 10
        anchors.right: search.right
        anchors.top: search.bottom
        anchors.topMargin: 14
        role: "note"
        color: Theme.color.text3
        wrapMode: Text.Wrap
        text: qsTr("No setting goes by these words")
    }
}
