// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The tabs of the favourites, and at the far end search, all tools and settings. The chosen tab
// is the one that Tab reaches; arrows move among the tabs.
FocusScope {
    id: root

    function takeFocus() {
        const chosen = tabs.chosenIndex();
        (tabs.itemAt(chosen) ?? search).forceActiveFocus(Qt.TabFocusReason);
    }
    function move(from, step) {
        const next = tabs.itemAt((from + step + tabs.count) % tabs.count);
        next.forceActiveFocus(Qt.TabFocusReason);
    }

    readonly property int forwards: LayoutMirroring.enabled ? -1 : 1

    Row {
        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2
        Accessible.role: Accessible.PageTabList
        Accessible.name: qsTr("Tools", "@info:accessible tabs of the panel")

        Repeater {
            id: tabs

            function chosenIndex() {
                return App.panel.tabs.findIndex(tab => tab.id === App.panel.chosenTab);
            }

            model: App.panel.tabs
            delegate: PanelTab {
                required property int index
                required property var modelData

                iconName: modelData.icon
                title: modelData.title
                keyHint: index < 9 ? qsTr("Ctrl+%1").arg(index + 1) : ""
                chosen: modelData.id === App.panel.chosenTab && App.panel.tool !== "tools"
                reachable: modelData.id === App.panel.chosenTab
                onClicked: App.panel.openTool(modelData.id)
                Keys.onLeftPressed: root.move(index, -root.forwards)
                Keys.onRightPressed: root.move(index, root.forwards)
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        HeaderButton {
            id: search

            iconName: "search"
            name: qsTr("Search", "@action:button opens the palette")
            keyHint: qsTr("Ctrl+K")
            onClicked: App.palette.openWanted()
        }
        HeaderButton {
            iconName: "grid"
            name: qsTr("All tools")
            chosen: App.panel.tool === "tools"
            onClicked: App.panel.tool === "tools" ? App.panel.back() : App.panel.showAllTools()
        }
        HeaderButton {
            iconName: "settings"
            name: qsTr("Settings")
            keyHint: qsTr("Ctrl+,")
            onClicked: App.panel.openTool("settings")
        }
    }
}
