// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The strip at the screen's edge with a slot for each workspace. There is room for three; more
// of them scroll.
FocusScope {
    id: root

    property bool hasShadow: true

    readonly property string edge: App.dock.edge
    readonly property bool isBottom: edge === "bottom"
    readonly property real slotWidth: isBottom ? (width - 12) / 3 : width - 12
    readonly property real slotHeight: isBottom ? height - 20 : (height - 26) / 3
    readonly property real step: isBottom ? slotWidth : slotHeight
    readonly property int iconSize: Math.min(width, height) > 80 ? 25
                                  : Math.min(width, height) > 70 && !isBottom ? 23 : 21
    // From the end that the layout measures from, which does not mirror.
    readonly property int place: isBottom && LayoutMirroring.enabled
                                 ? App.dock.workspaces.length - 1 - App.dock.current : App.dock.current
    readonly property real centre: (isBottom ? list.x - list.contentX : list.y - list.contentY)
                                   + (place + 0.5) * step

    signal panelWanted

    function slotOf(index) {
        return slots.itemAt(index);
    }
    function focusSlot() {
        slotOf(Math.max(0, App.dock.current))?.forceActiveFocus(Qt.TabFocusReason);
    }
    function move(from, by) {
        slotOf(from + by)?.forceActiveFocus(Qt.TabFocusReason);
    }
    function workspaceAt(point) {
        for (let at = 0; at < slots.count; ++at) {
            const slot = slotOf(at);
            if (slot.contains(slot.mapFromItem(root, point))) {
                return at;
            }
        }
        return -1;
    }
    function reveal() {
        const slot = slotOf(App.dock.current);
        if (!slot) {
            return;
        }
        const start = isBottom ? slot.x : slot.y;
        const room = isBottom ? list.width : list.height;
        const at = isBottom ? list.contentX : list.contentY;
        const wanted = Math.max(start + step - room, Math.min(at, start));
        if (isBottom) {
            list.contentX = wanted;
        } else {
            list.contentY = wanted;
        }
    }

    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Workspaces")

    Binding {
        target: App.dock
        property: "anchor"
        value: Math.max(0, Math.min(root.isBottom ? root.width : root.height, root.centre))
    }
    readonly property int shown: App.dock.current
    onShownChanged: Qt.callLater(reveal)
    onEdgeChanged: Qt.callLater(reveal)
    Component.onCompleted: Qt.callLater(reveal)

    DockGround {
        anchors.fill: parent
        hasShadow: root.hasShadow
        squareEdge: App.dock.isFloating ? "" : App.dock.edge
    }
    Flickable {
        id: list

        x: root.isBottom ? 6 : 0
        y: root.isBottom ? 0 : Math.round((root.height - 3 * root.slotHeight) / 2)
        width: root.isBottom ? root.width - 12 : root.width
        height: root.isBottom ? root.height : 3 * root.slotHeight
        contentWidth: root.isBottom ? Math.max(width, slots.count * root.step) : width
        contentHeight: root.isBottom ? height : Math.max(height, slots.count * root.step)
        boundsBehavior: Flickable.StopAtBounds
        interactive: slots.count > 3
        clip: interactive

        Repeater {
            id: slots

            model: App.dock.workspaces
            delegate: DockSlot {
                required property int index

                readonly property int at: root.isBottom && LayoutMirroring.enabled
                                          ? slots.count - 1 - index : index
                readonly property int apart: root.pointedAt < 0 ? 2 : Math.abs(root.pointedAt - index)

                x: root.isBottom ? at * root.step : 6
                y: root.isBottom ? 10 : at * root.step
                width: root.slotWidth
                height: root.slotHeight
                iconSize: root.iconSize
                chosen: App.dock.isOpen && index === App.dock.current
                isCurrent: index === App.dock.current
                workspace: index
                magnification: !App.dock.isMagnifying ? 1 : apart === 0 ? 1.12
                             : apart === 1 ? 1.05 : 1
                onHoveredChanged: {
                    root.pointedAt = hovered ? index : root.pointedAt === index ? -1 : root.pointedAt;
                    App.dock.point(root.pointedAt);
                }
                onStepped: by => root.move(index, by)
                onClicked: App.dock.activate(index)
                onEntered: {
                    App.dock.activate(index);
                    root.panelWanted();
                }
            }
        }
    }

    property int pointedAt: -1
}
