// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// Every tool of the catalogue in the user's order. Arrows move, Enter opens.
ScrollBody {
    id: root

    property string footerText: qsTr("Favourites stay in the header. Choose them in the settings.")
    property var footerKeys: [{key: "↑↓←→", text: qsTr("move")}, {key: "Enter", text: qsTr("open")}]
    property Item mainItem: grid

    readonly property int columns: 8

    contentWidth: width
    contentHeight: grid.y + grid.height

    GridView {
        id: grid

        y: 4 // for the focus ring
        width: root.width
        height: Math.ceil(count / root.columns) * cellHeight
        cellWidth: Math.floor(root.width / root.columns)
        cellHeight: 72
        interactive: false
        keyNavigationWraps: true
        activeFocusOnTab: true
        model: App.panel.allTools
        Keys.onReturnPressed: App.panel.openTool(model[currentIndex].id)
        Keys.onEnterPressed: App.panel.openTool(model[currentIndex].id)
        Keys.onSpacePressed: App.panel.openTool(model[currentIndex].id)
        Accessible.role: Accessible.List
        Accessible.name: qsTr("All tools")

        delegate: T.AbstractButton {
            id: tile

            required property int index
            required property var modelData

            readonly property bool isCurrent: GridView.isCurrentItem && grid.activeFocus

            width: grid.cellWidth
            height: 68
            hoverEnabled: true
            focusPolicy: Qt.NoFocus
            onClicked: App.panel.openTool(modelData.id)
            Accessible.name: modelData.title
            Accessible.description: modelData.isBuilt ? "" : qsTr("Not part of this version yet")

            contentItem: Item {
                Rectangle {
                    id: box

                    anchors.horizontalCenter: parent.horizontalCenter
                    width: 48
                    height: 48
                    radius: 15
                    color: tile.down ? Theme.color.bg3 : tile.hovered ? Theme.color.bg2 : Theme.color.bg1
                    Behavior on color { enabled: root.visible; HoverFade {} }

                    Icon {
                        anchors.centerIn: parent
                        size: 22
                        name: tile.modelData.icon
                        color: tile.modelData.isBuilt ? Theme.color.text1 : Theme.color.text4
                    }
                    FocusRing {
                        shown: tile.isCurrent
                        corner: 15
                    }
                }
                Txt {
                    anchors.top: box.bottom
                    anchors.topMargin: 6
                    width: parent.width
                    horizontalAlignment: Text.AlignHCenter
                    role: "caption"
                    text: tile.modelData.title
                    color: tile.modelData.isBuilt ? Theme.color.text2 : Theme.color.text3
                    Accessible.ignored: true
                }
            }
        }
    }
}
