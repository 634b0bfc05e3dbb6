// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Everything that the machine tells, and what it does not and why.
Item {
    id: root

    readonly property Item mainItem: rows

    MonitorHead {
        width: parent.width
        title: qsTr("All readings")
        note: qsTr("sensors, batteries and what is connected")
    }
    GridView {
        id: rows

        y: 40
        width: parent.width + 16 // the gap after the last column
        height: parent.height - 40
        cellWidth: Math.floor(width / 2)
        cellHeight: 36
        model: App.monitor.readings
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        Accessible.role: Accessible.List
        Accessible.name: qsTr("All readings")
        delegate: Item {
            id: reading

            required property string title
            required property string note
            required property string cpu // the figure
            required property bool isFaint
            required property string spoken

            width: rows.cellWidth - 16
            height: 36
            Accessible.role: Accessible.ListItem
            Accessible.name: spoken

            Column {
                anchors.left: parent.left
                anchors.right: figure.left
                anchors.rightMargin: 8
                anchors.verticalCenter: parent.verticalCenter

                Txt {
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    role: "label"
                    text: reading.title
                    color: reading.isFaint ? Theme.color.text3 : Theme.color.text2
                    Accessible.ignored: true
                }
                Txt {
                    visible: text !== ""
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    role: "caption"
                    text: reading.note
                    color: Theme.color.text3
                    Accessible.ignored: true
                }
            }
            Txt {
                id: figure

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                role: "strong"
                text: reading.cpu
                color: reading.isFaint ? Theme.color.text3 : Theme.color.text1
                Accessible.ignored: true
            }
        }
    }
}
