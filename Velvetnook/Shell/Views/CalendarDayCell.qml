// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One day of the month.
T.AbstractButton {
    id: root

    required property int index
    required property string day
    required property string islamic
    required property string name
    required property bool isInMonth
    required property bool isToday
    required property bool isChosen
    required property bool isBusy
    property bool ringed: false

    readonly property color ink: isToday ? Theme.color.onAccent
                               : isInMonth ? Theme.color.text1 : Theme.color.text4

    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.role: Accessible.Cell
    Accessible.name: isBusy ? qsTr("%1, with events").arg(name) : name
    Accessible.selected: isChosen
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Rectangle {
            id: disc

            anchors.centerIn: parent
            width: 28
            height: Math.min(28, root.height)
            radius: height / 2
            color: root.isToday ? Theme.color.accent
                 : root.isChosen ? Theme.color.soft2
                 : root.hovered ? Theme.color.bg2 : "transparent"
            border.width: root.isChosen && !root.isToday ? Theme.outline : 0
            border.color: Theme.color.accent
            FocusRing {
                shown: root.ringed
                isInner: !root.isToday
                corner: disc.radius
                anchors.margins: root.isToday ? -2 : 0
                radius: corner + 2
            }
        }
        Txt {
            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height - 23) / 2
            role: "label"
            lineHeight: 14
            font.weight: root.isToday || root.isChosen ? Font.DemiBold : Font.Medium
            color: root.ink
            text: root.day
            Accessible.ignored: true
        }
        Txt {
            anchors.horizontalCenter: parent.horizontalCenter
            y: (parent.height - 23) / 2 + 13
            role: "caption"
            pixelSize: 8
            lineHeight: 10
            color: root.isToday ? Theme.color.onAccent
                 : root.isInMonth ? Theme.color.text3 : Theme.color.text4
            text: root.islamic
            Accessible.ignored: true
        }
        Rectangle {
            visible: root.isBusy
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.horizontalCenterOffset: 15
            y: parent.height / 2 - 12
            width: 4
            height: 4
            radius: 2
            color: root.isInMonth ? Theme.color.accent : Theme.color.text4
        }
    }
}
