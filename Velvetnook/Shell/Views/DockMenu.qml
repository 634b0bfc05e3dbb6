// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A menu in the dock's panel. While it is open the panel stays.
PopupMenu {
    id: root

    property bool isHolding: false

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
