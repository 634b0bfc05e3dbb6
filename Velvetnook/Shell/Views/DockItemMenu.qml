// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What can be done with one item of the dock.
DockMenu {
    id: root

    property string itemId
    property string title

    signal renameWanted(string itemId, string title)

    property var deeds: []

    function show(tile) {
        itemId = tile.itemId;
        title = tile.title;
        fill(tile);
        popupAt(tile);
    }
    function fill(tile) {
        const rows = [];
        const done = [];
        const add = (row, deed) => {
            rows.push(row);
            done.push(deed);
        };
        if (!tile.isDivider) {
            add({text: qsTr("Open"), iconName: "enter"}, () => App.dock.openItem(itemId));
            add({text: qsTr("Rename…"), iconName: "text"}, () => renameWanted(itemId, title));
            add({separator: true}, () => {});
            const lifetimes = [["permanent", qsTr("Keep it")], ["hour", qsTr("For an hour")],
                               ["session", qsTr("Until Velvetnook closes")]];
            for (const [value, text] of lifetimes) {
                add({text: text, checked: tile.lifetime === value},
                    () => App.dock.setLifetime(itemId, value));
            }
        }
        if (App.dock.workspaces.length > 1 && !tile.isDivider) {
            add({separator: true}, () => {});
        }
        App.dock.workspaces.forEach((workspace, index) => {
            if (index !== App.dock.current) {
                add({text: qsTr("Move to %1").arg(workspace.title), iconName: workspace.icon},
                    () => App.dock.moveItemTo(itemId, index));
            }
        });
        add({separator: true}, () => {});
        add({text: qsTr("Remove"), iconName: "trash", key: qsTr("Del")},
            () => App.dock.removeItem(itemId));
        items = rows;
        deeds = done;
    }

    onChosen: index => deeds[index]()
}
