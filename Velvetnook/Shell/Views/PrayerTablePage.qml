// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The times of a week or a month as a table, with the way back and on.
FocusScope {
    id: root

    readonly property bool isMonth: App.prayer.page === "month"

    function toToday() {
        for (let at = 0; at < lines.count; ++at) {
            const line = lines.itemAt(at);
            if (line && line.isToday) {
                body.reveal(line);
            }
        }
    }

    Keys.onLeftPressed: App.prayer.turn(LayoutMirroring.enabled ? 1 : -1)
    Keys.onRightPressed: App.prayer.turn(LayoutMirroring.enabled ? -1 : 1)
    Keys.onUpPressed: body.contentY = Math.max(0, body.contentY - 48)
    Keys.onDownPressed: body.contentY = Math.max(0, Math.min(body.contentHeight - body.height,
                                                             body.contentY + 48))
    Keys.onPressed: event => {
        if (letters.keyOf(event) === Qt.Key_T) {
            App.prayer.turnToToday();
            event.accepted = true;
        }
    }

    KeyLetters { id: letters }
    Segmented {
        id: pages

        anchors.left: parent.left
        focus: true
        name: qsTr("Shown")
        options: [{value: "day", label: qsTr("Day")}, {value: "week", label: qsTr("Week")},
                  {value: "month", label: qsTr("Month")}]
        value: App.prayer.page
        onChosen: value => App.prayer.page = value
    }
    Txt {
        anchors.left: pages.right
        anchors.leftMargin: 14
        anchors.right: steps.left
        anchors.rightMargin: 8
        anchors.verticalCenter: pages.verticalCenter
        role: "heading"
        text: App.prayer.tableTitle
    }
    Row {
        id: steps

        anchors.right: parent.right
        anchors.verticalCenter: pages.verticalCenter
        spacing: 4
        GhostButton {
            visible: !App.prayer.isTodayShown
            small: true
            text: qsTr("Today")
            onClicked: App.prayer.turnToToday()
        }
        IconButton {
            size: 30
            iconName: "left"
            name: root.isMonth ? qsTr("Previous month") : qsTr("Previous week")
            keyHint: "←"
            onClicked: App.prayer.turn(-1)
        }
        IconButton {
            size: 30
            iconName: "right"
            name: root.isMonth ? qsTr("Next month") : qsTr("Next week")
            keyHint: "→"
            onClicked: App.prayer.turn(1)
        }
    }
    PrayerTableRow {
        id: head

        y: 40
        width: parent.width
        isHead: true
        times: App.prayer.names
    }
    ScrollBody {
        id: body

        anchors.top: head.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        Column {
            width: body.width
            Repeater {
                id: lines

                model: App.prayer.tableRows
                onModelChanged: Qt.callLater(root.toToday)
                delegate: PrayerTableRow {
                    required property var modelData

                    width: parent ? parent.width : 0
                    day: modelData.day
                    islamic: modelData.islamic
                    isToday: modelData.isToday
                    times: modelData.times
                }
            }
        }
    }
    Component.onCompleted: Qt.callLater(root.toToday)
}
