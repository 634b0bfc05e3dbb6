// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A menu in the dock's panel. While it is open the panel stays.
PopupMenu {
    id: root

    property bool isHolding: false

    readonly property int wanted: items.reduce((sum, item) => sum + (item.separator ? 13 : 34), 12)

    // Below the item, or over it, inside of the panel: what lies outside of it is not drawn.
    function popupAt(item) {
        let panel = parent;
        while (panel.objectName !== "surface" && panel.parent) {
            panel = panel.parent;
        }
        const at = item.mapToItem(panel, 0, 0);
        const height = Math.min(wanted, 320);
        const x = Math.max(6, Math.min(at.x + item.width - implicitWidth, panel.width - implicitWidth - 6));
        const y = Math.max(6, Math.min(at.y + Math.min(item.height, 52) + 2, panel.height - height - 6));
        const here = parent.mapFromItem(panel, x, y);
        popup(here.x, here.y);
    }

    function hold(isHeld) {
        if (isHolding !== isHeld) {
            isHolding = isHeld;
            if (isHeld) {
                App.dock.beginDialog();
            } else {
                App.dock.endDialog();
            }
        }
    }

    onOpened: hold(true)
    onClosed: hold(false)
    Component.onDestruction: hold(false)
}
