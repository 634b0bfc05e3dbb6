// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One event of the day.
T.ItemDelegate {
    id: root

    required property int index
    required property string time
    required property string title
    required property string trailing
    required property string place
    required property string calendar
    required property string span
    required property bool isPast
    required property bool isNow
    required property bool isNext
    property bool selected: false
    property real timeWidth: 38

    readonly property color ink: isPast ? Theme.color.text3 : Theme.color.text1

    implicitHeight: 41
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.name: time + " " + title
    Accessible.description: trailing
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Rectangle {
            id: bar

            anchors.left: parent.left
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: 24
            radius: 2
            color: root.isNow ? Theme.color.accent : Theme.color.line2
        }
        Txt {
            id: clock

            anchors.left: bar.right
            anchors.leftMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: root.timeWidth
            role: "label"
            horizontalAlignment: Text.AlignLeft
            color: root.isPast ? Theme.color.text3 : Theme.color.text2
            text: root.time
            Accessible.ignored: true
        }
        Txt {
            anchors.left: clock.right
            anchors.leftMargin: 12
            anchors.right: tail.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            role: "strong"
            horizontalAlignment: Text.AlignLeft
            color: root.ink
            text: root.title
            Accessible.ignored: true
        }
        Txt {
            id: tail

            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, 110)
            role: "note"
            color: root.isNext ? Theme.color.text2 : Theme.color.text3
            text: root.trailing
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: 12
        color: root.selected ? Theme.color.soft2 : root.down ? Theme.color.bg3
             : root.hovered ? Theme.color.bg2 : root.isNext ? Theme.color.bg1 : "transparent"
    }
}
