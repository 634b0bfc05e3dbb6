// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The applications, the busiest first. While the pointer or the keys are on them, they stay
// where they are.
Item {
    id: root

    property alias mainItem: rows

    Txt {
        anchors.left: parent.left
        height: 20
        verticalAlignment: Text.AlignVCenter
        role: "caption"
        text: qsTr("Applications")
        color: Theme.color.text3
    }
    MonitorSort {
        anchors.right: memory.left
        width: 44
        text: qsTr("CPU")
        order: "cpu"
    }
    MonitorSort {
        id: memory

        anchors.right: parent.right
        width: 64
        text: qsTr("Memory")
        order: "memory"
    }
    ListView {
        id: rows

        y: 20
        width: parent.width
        height: parent.height - 20
        model: App.monitor.apps
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        currentIndex: -1
        reuseItems: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Applications")
        onActiveFocusChanged: {
            if (activeFocus && currentIndex < 0) {
                currentIndex = 0;
            }
        }
        Keys.onReturnPressed: open()
        Keys.onEnterPressed: open()
        Keys.onSpacePressed: open()

        function open() {
            if (currentItem) {
                App.monitor.showApp(currentItem.rowId);
            }
        }

        delegate: MonitorAppRow {
            width: rows.width
            ringed: rows.activeFocus && ListView.isCurrentItem && keyboard.isUsed
            onClicked: App.monitor.showApp(rowId)
        }
        Keys.onPressed: keyboard.isUsed = true
    }
    QtObject {
        id: keyboard

        property bool isUsed: false
    }
    HoverHandler { id: pointer }
    Binding {
        target: App.monitor
        property: "isHeld"
        value: pointer.hovered || (rows.activeFocus && keyboard.isUsed)
    }
}
