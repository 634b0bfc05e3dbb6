// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A date and its six times, or the names over them.
Item {
    id: root

    property string day
    property string islamic
    property bool isToday: false
    property bool isHead: false
    property var times: []

    implicitHeight: 22
    Accessible.role: Accessible.Row
    Accessible.name: [day, islamic].concat(times).join(", ")

    Rectangle {
        visible: root.isToday
        anchors.fill: parent
        radius: 8
        color: Theme.color.soft2
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        width: 60
        role: "label"
        color: root.isToday ? Theme.color.accent : Theme.color.text2
        text: root.day
        Accessible.ignored: true
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 74
        anchors.verticalCenter: parent.verticalCenter
        width: 112
        role: "caption"
        color: root.isToday ? Theme.color.text2 : Theme.color.text3
        text: root.islamic
        Accessible.ignored: true
    }
    Row {
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        Repeater {
            model: root.times
            delegate: Txt {
                required property string modelData

                width: 68
                horizontalAlignment: Text.AlignLeft // with the layout, not with the digits
                role: root.isHead ? "caption" : "label"
                color: root.isHead ? Theme.color.text3
                     : root.isToday ? Theme.color.text1 : Theme.color.text2
                text: modelData
                Accessible.ignored: true
            }
        }
    }
}
