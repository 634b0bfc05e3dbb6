// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: which tools are on, in which order, and which have a tab.
Column {
    id: root

    readonly property QtObject page: App.settings.tools

    function step(from, by) {
        const to = from + by;
        if (to >= 0 && to < rows.count) {
            page.move(from, to);
            rows.itemAt(to).handle.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    SettingsGroup {
        note: root.page.favouritesNote + " "
              + qsTr("Drag a tool by its handle, or press Alt and an arrow on it.")
        Repeater {
            id: rows

            model: root.page
            delegate: ToolRow {
                width: parent.width
                count: rows.count
                onStepWanted: by => root.step(index, by)
                onDropped: to => root.page.move(index, to)
                onFavouriteWanted: on => root.page.setFavourite(toolId, on)
                onEnableWanted: on => root.page.setEnabled(toolId, on)
            }
        }
    }
}
