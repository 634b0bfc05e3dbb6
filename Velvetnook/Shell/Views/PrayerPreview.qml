// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Today's times by what is chosen, or why there are none.
Column {
    id: root

    readonly property QtObject page: App.settings.prayer

    spacing: 8

    Rectangle {
        width: parent.width
        height: 74
        radius: Theme.radius.card
        color: Theme.color.bg1

        Row {
            visible: root.page.times.length > 0
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 6

            Repeater {
                model: root.page.times
                delegate: Column {
                    id: cell

                    required property var modelData

                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width / 6
                    spacing: 4
                    Txt {
                        width: parent.width
                        role: "label"
                        horizontalAlignment: Text.AlignHCenter
                        text: cell.modelData.name
                        color: cell.modelData.isNext ? Theme.color.accent : Theme.color.text3
                    }
                    Txt {
                        width: parent.width
                        role: "heading"
                        horizontalAlignment: Text.AlignHCenter
                        text: cell.modelData.time
                        font.weight: Font.Medium
                        color: cell.modelData.isNext ? Theme.color.accent : Theme.color.text1
                    }
                }
            }
        }
        Row {
            visible: root.page.times.length === 0
            anchors.centerIn: parent
            spacing: 10
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "place"
                color: Theme.color.text3
            }
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                text: root.page.timesMessage
                color: Theme.color.text2
            }
        }
    }
    Txt {
        visible: root.page.times.length > 0
        x: 4
        width: parent.width - 8
        role: "note"
        color: Theme.color.text3
        text: root.page.timesMessage
    }
}
