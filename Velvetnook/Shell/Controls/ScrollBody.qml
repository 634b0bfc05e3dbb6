// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// What may be taller than its room: scrolls, with a thumb of 4 px that fades.
Flickable {
    id: root

    // Brings an item of the content into sight, as when Tab reaches it.
    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y - 8;
        const bottom = top + item.height + 16;
        if (top < contentY) {
            contentY = Math.max(0, top);
        } else if (bottom > contentY + height) {
            contentY = Math.min(bottom, contentHeight) - height;
        }
    }
    function holds(item) {
        let above = item;
        while (above && above !== contentItem) {
            above = above.parent;
        }
        return above === contentItem;
    }

    readonly property Item focused: Window.activeFocusItem
    onFocusedChanged: {
        if (focused && contentHeight > height && holds(focused)) {
            reveal(focused);
        }
    }

    contentHeight: contentItem.childrenRect.height
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    flickableDirection: Flickable.VerticalFlick
    clip: interactive

    Rectangle {
        id: thumb

        readonly property bool isWanted: root.moving || area.hovered

        parent: root
        z: 1
        visible: root.interactive && opacity > 0
        x: root.LayoutMirroring.enabled ? 2 : root.width - width - 2
        y: root.visibleArea.yPosition * root.height
        width: 4
        height: Math.max(24, root.visibleArea.heightRatio * root.height)
        radius: 2
        color: Theme.color.line2
        opacity: isWanted ? 1 : 0
        Accessible.ignored: true
        Behavior on opacity {
            enabled: root.visible
            NumberAnimation { duration: Theme.reducedMotion ? 100 : Theme.motion.tab }
        }
    }
    HoverHandler { id: area }
}
