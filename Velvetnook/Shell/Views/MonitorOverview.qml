// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Four figures of the machine, and the applications that use it most.
Item {
    id: root

    readonly property Item mainItem: apps
    readonly property bool hasAlert: App.monitor.alertText !== ""

    Grid {
        id: tiles

        anchors.left: parent.left
        columns: 2
        spacing: 8

        Repeater {
            model: App.monitor.tiles
            delegate: MonitorTileCard {
                required property var modelData

                tile: modelData
                onClicked: App.monitor.showChart(tile.metric)
            }
        }
    }
    MonitorApps {
        id: apps

        anchors.left: tiles.right
        anchors.leftMargin: 20
        anchors.right: parent.right
        height: 182
    }
    MonitorAlertBar {
        visible: root.hasAlert
        y: 190
        width: parent.width
    }
    Row {
        visible: !root.hasAlert
        anchors.left: parent.left
        y: 190
        spacing: 6

        Chip {
            iconName: "history"
            text: qsTr("History")
            onClicked: App.monitor.showChart("cpu")
        }
        Chip {
            iconName: "info"
            text: qsTr("All readings")
            onClicked: App.monitor.showPage("machine")
        }
        Chip {
            iconName: "volume"
            text: qsTr("Volumes")
            onClicked: App.monitor.showPage("mixer")
        }
        Chip {
            iconName: "bell"
            text: qsTr("Recording and alerts")
            onClicked: App.monitor.showPage("options")
        }
    }
}
