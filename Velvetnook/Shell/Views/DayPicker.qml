// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The days of the week, each on or off.
Row {
    id: root

    property var days: [] // [{value, letter, name, chosen}]

    signal moved(int day, bool chosen)

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Days")

    Repeater {
        // Counted, not listed: the buttons stay, and with them the focus, when a day changes.
        model: root.days.length
        delegate: T.CheckBox {
            id: day

            required property int index

            readonly property var each: root.days[index]

            implicitWidth: 32
            implicitHeight: 32
            checkable: false // only the owner changes it
            hoverEnabled: true
            focusPolicy: Qt.TabFocus
            text: each.letter
            Accessible.name: each.name
            Accessible.checkable: true
            Accessible.checked: each.chosen
            Keys.onReturnPressed: clicked()
            onClicked: root.moved(each.value, !each.chosen)

            contentItem: Txt {
                role: "label"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                text: day.text
                font.weight: day.each.chosen ? Font.DemiBold : Font.Medium
                color: day.each.chosen ? Theme.color.onAccent : Theme.color.text2
                Accessible.ignored: true
            }
            background: Rectangle {
                radius: 16
                antialiasing: true
                color: day.each.chosen ? (day.down ? Theme.color.accentPressed
                                          : day.hovered ? Theme.color.accentHover : Theme.color.accent)
                     : day.down ? Theme.color.bg3
                     : day.hovered ? Theme.color.bg2 : Qt.alpha(Theme.color.bg2, 0)
                border.width: day.each.chosen ? 0 : 1
                border.color: Theme.color.line2
                FocusRing { shown: day.visualFocus; corner: 16 }
            }
        }
    }
}
