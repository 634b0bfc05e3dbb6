// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The items of the open workspace, four in a line. They are moved by dragging them, or with Alt
// and the arrows; what is dropped on an application is opened with it, and else stays here.
FocusScope {
    id: root

    property real dropHeight: height

    signal pageWanted(string page, string itemId, string title)
    signal carriedOut(string itemId, point at) // in the window

    readonly property real cell: width / 4
    readonly property int lineHeight: 80
    readonly property int dividerHeight: 14
    property int pointedAt: -1
    readonly property Item first: tiles.count > 0 ? tiles.itemAt(0) : null

    function isForward(from, to) {
        return LayoutMirroring.enabled ? to < from : to > from;
    }
    // The place of what is let go at a point, among the items without itself.
    function placeAt(point, without) {
        let place = 0;
        for (let at = 0; at < tiles.count; ++at) {
            const tile = tiles.itemAt(at);
            const isBefore = tile.y + tile.height <= point.y
                             || (tile.y <= point.y && isForward(tile.x + tile.width / 2, point.x));
            place += at !== without && isBefore ? 1 : 0;
        }
        return place;
    }
    // Along the line, or to the nearest tile of the next one.
    function step(from, columns, lines) {
        const start = tiles.itemAt(from);
        let best = columns !== 0 ? tiles.itemAt(from + columns) : null;
        for (let at = 0; at < tiles.count && lines !== 0; ++at) {
            const tile = tiles.itemAt(at);
            const away = (tile.y - start.y) * lines;
            const nearest = best ? (best.y - start.y) * lines : Infinity;
            if (away > 0 && (away < nearest
                             || (away === nearest && Math.abs(tile.column - start.column)
                                                     < Math.abs(best.column - start.column)))) {
                best = tile;
            }
        }
        best?.forceActiveFocus(Qt.TabFocusReason);
    }
    function tileAt(point) {
        for (let at = 0; at < tiles.count; ++at) {
            const tile = tiles.itemAt(at);
            if (tile.contains(tile.mapFromItem(root, point))) {
                return tile;
            }
        }
        return null;
    }

    implicitHeight: App.dock.items.lines * lineHeight + App.dock.items.dividers * dividerHeight
    Accessible.role: Accessible.List
    Accessible.name: App.dock.title

    Repeater {
        id: tiles

        model: App.dock.items
        delegate: DockTile {
            readonly property int apart: root.pointedAt < 0 ? 2 : Math.abs(root.pointedAt - index)
            readonly property real start: column * root.cell

            x: isDivider ? 0 : LayoutMirroring.enabled ? root.width - start - width : start
            y: line * root.lineHeight + dividersAbove * root.dividerHeight - (isDivider ? 5 : 0)
            width: isDivider ? root.width : root.cell
            height: isDivider ? root.dividerHeight : 68
            magnification: !App.dock.isMagnifying || isDivider ? 1 : apart === 0 ? 1.12
                         : apart === 1 ? 1.05 : 1
            onHoveredChanged: root.pointedAt = hovered ? index
                                             : root.pointedAt === index ? -1 : root.pointedAt
            onStepped: (columns, lines) => root.step(index, columns, lines)
            onMoveWanted: by => App.dock.moveItem(itemId, Math.max(0, index + by))
            onDropped: at => {
                const point = root.mapFromItem(this, at);
                if (point.x < -20 || point.x > root.width + 20) {
                    root.carriedOut(itemId, root.mapToItem(null, point));
                } else {
                    App.dock.moveItem(itemId, root.placeAt(point, index));
                }
            }
            onMenuWanted: menu.show(this)
            onRenameWanted: root.pageWanted("name", itemId, title)
        }
    }
    DropArea {
        width: parent.width
        height: Math.max(root.height, root.dropHeight)
        z: -1
        onDropped: dropped => {
            const tile = root.tileAt(Qt.point(dropped.x, dropped.y));
            const isTaken = tile !== null && App.dock.openWith(tile.itemId, dropped.urls);
            if (isTaken || App.dock.drop(App.dock.current, dropped.urls,
                                         dropped.hasText ? dropped.text : "",
                                         root.placeAt(Qt.point(dropped.x, dropped.y), -1))) {
                dropped.accept(Qt.CopyAction);
            }
        }
    }
    DockItemMenu {
        id: menu

        onRenameWanted: (itemId, title) => root.pageWanted("name", itemId, title)
    }
}
