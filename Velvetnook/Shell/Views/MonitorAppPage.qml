// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One application: its processes, the ports that they listen on, and its end.
Item {
    id: root

    readonly property Item mainItem: rows

    MonitorHead {
        id: head

        width: parent.width
        title: App.monitor.appTitle
        note: App.monitor.isAppGone ? qsTr("has ended") : App.monitor.appNote

        IconButton {
            size: 30
            iconName: App.monitor.isAppExcluded ? "bell-off" : "bell"
            name: !App.monitor.isAppExcluded ? qsTr("No alerts about this application")
                                      : qsTr("Alerts about this application")
            onClicked: App.monitor.options.setExcluded(App.monitor.appId, !App.monitor.isAppExcluded)
        }
        SecondaryButton {
            small: true
            enabled: !App.monitor.isAppGone
            text: qsTr("Quit…")
            onClicked: App.monitor.askToEnd(App.monitor.appId, false)
        }
        DangerButton {
            small: true
            enabled: !App.monitor.isAppGone
            text: qsTr("Kill…")
            onClicked: App.monitor.askToEnd(App.monitor.appId, true)
        }
    }
    Item {
        y: 40
        width: parent.width
        height: 20

        Txt {
            anchors.left: parent.left
            anchors.right: cpu.left
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignLeft
            role: "caption"
            text: App.monitor.appPorts === "" ? qsTr("Processes")
                                              : qsTr("Processes") + " · " + App.monitor.appPorts
            color: Theme.color.text3
        }
        MonitorCaption {
            id: cpu

            anchors.right: memory.left
            width: 60
            text: qsTr("CPU")
        }
        MonitorCaption {
            id: memory

            anchors.right: disk.left
            width: 70
            text: qsTr("Memory")
        }
        MonitorCaption {
            id: disk

            anchors.right: parent.right
            anchors.rightMargin: 70
            width: 80
            text: qsTr("Disk")
        }
    }
    ListView {
        id: rows

        y: 60
        width: parent.width
        height: parent.height - 60
        model: App.monitor.processes
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        reuseItems: true
        activeFocusOnTab: true
        highlightMoveDuration: 0
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Processes")
        delegate: MonitorProcessRow {
            width: rows.width
            isCurrent: rows.activeFocus && ListView.isCurrentItem
        }
        Keys.onDeletePressed: event => {
            if (currentItem) {
                App.monitor.askToEnd(currentItem.rowId, (event.modifiers & Qt.ShiftModifier) !== 0);
            }
        }
    }
    HoverHandler { id: pointer }
    Binding {
        target: App.monitor
        property: "isHeld"
        value: pointer.hovered || rows.activeFocus
    }
}
