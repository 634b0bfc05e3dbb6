// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A bar for each of the last 7 or 30 days.
Item {
    id: root

    readonly property var days: App.history.days
    readonly property bool isWeek: days.length === 7

    Row {
        anchors.left: parent.left
        spacing: root.isWeek ? 10 : 2

        Repeater {
            model: root.days
            delegate: Item {
                id: day

                required property var modelData

                width: root.isWeek ? 16 : 4
                height: root.height
                Accessible.role: Accessible.StaticText
                Accessible.name: modelData.spoken

                Rectangle {
                    y: 50 - height
                    width: parent.width
                    height: Math.max(3, day.modelData.share * 50)
                    radius: root.isWeek ? 5 : 2
                    color: day.modelData.isToday ? Theme.color.accent : Theme.color.bg3
                }
                Txt {
                    visible: text !== ""
                    y: 56
                    anchors.horizontalCenter: parent.horizontalCenter
                    role: "caption"
                    text: day.modelData.label
                    color: day.modelData.isToday ? Theme.color.text1 : Theme.color.text3
                    elide: Text.ElideNone
                    Accessible.ignored: true
                }
            }
        }
    }
    Txt {
        visible: !root.isWeek
        y: 56
        anchors.left: parent.left
        role: "caption"
        text: App.history.firstDay
        color: Theme.color.text3
    }
    Txt {
        visible: !root.isWeek
        y: 56
        anchors.right: parent.right
        role: "caption"
        text: qsTr("Today")
        color: Theme.color.text1
    }
}
