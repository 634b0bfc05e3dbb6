// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the open panel is drawn on: it hangs out of the black of the strip.
Item {
    id: root

    property real radius: Theme.radius.panel
    property real fillet: Theme.radius.panelFillet
    property bool hasShadow: true
    property real lightness: 1 // 0: as black as the strip

    function mixed(color) {
        return Qt.rgba(color.r * lightness, color.g * lightness, color.b * lightness,
                       App.panel.isFrosted ? 1 - 0.06 * lightness : 1);
    }

    readonly property color ground: mixed(Theme.color.bg0)

    Shadow {
        visible: root.hasShadow
        step: "floating"
        opacity: root.lightness
    }
    HangingShape {
        anchors.fill: parent
        radius: root.radius
        fillet: root.fillet
        topColor: Theme.isDark ? "black" : root.ground
        color: root.ground
    }
}
