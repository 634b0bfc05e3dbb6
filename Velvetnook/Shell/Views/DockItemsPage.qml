// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The open workspace: its name, its items, and its widgets at the foot.
FocusScope {
    id: root

    signal pageWanted(string page, string itemId, string title)
    signal carried(string itemId, point at) // out of the panel, in the window

    function takeFocus(reason) {
        (grid.first ?? head.main).forceActiveFocus(reason);
    }

    DockHead {
        id: head

        width: parent.width
        onPageWanted: (page, itemId, title) => root.pageWanted(page, itemId, title)
    }
    ScrollBody {
        id: scroll

        anchors.top: head.bottom
        anchors.topMargin: 6
        anchors.bottom: parent.bottom
        anchors.bottomMargin: -12
        anchors.left: parent.left
        anchors.right: parent.right
        contentHeight: content.height

        Item {
            id: content

            width: scroll.width
            height: Math.max(scroll.height, grid.height + (widgets.count > 0 ? widgets.height + 12 : 0))

            DockGrid {
                id: grid

                y: 4
                width: parent.width
                // What is dropped below the last line goes to the end.
                dropHeight: widgets.count > 0 ? widgets.y - y : parent.height - y
                onPageWanted: (page, itemId, title) => root.pageWanted(page, itemId, title)
                onCarriedOut: (itemId, at) => root.carried(itemId, at)
            }
            AvailabilityView {
                visible: App.dock.items.lines === 0
                y: 16
                width: parent.width
                availability: "empty"
                iconName: "dock"
                message: qsTr("Nothing lies here yet")
                note: qsTr("Drop files, applications or links here, or press +.")
            }
            Column {
                id: widgets

                readonly property int count: list.count

                width: parent.width
                y: content.height - height - 12
                spacing: 10

                Repeater {
                    id: list

                    model: App.dock.widgets
                    delegate: DockWidget { width: widgets.width }
                }
            }
        }
    }
}
