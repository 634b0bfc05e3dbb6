// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How much was counted in the chosen time, and on which day.
Item {
    id: root

    Row {
        anchors.left: parent.left
        anchors.leftMargin: -8
        height: 30
        spacing: 6

        IconButton {
            size: 30
            iconSize: 16
            iconName: "left"
            name: qsTr("Back to the counter")
            keyHint: "H"
            onClicked: App.panel.openTool("dhikr")
        }
        Txt {
            anchors.verticalCenter: parent.verticalCenter
            role: "heading"
            text: qsTr("History")
        }
    }
    Segmented {
        y: 38
        anchors.left: parent.left
        name: qsTr("Time that is added up")
        options: [{value: "today", label: qsTr("Today")}, {value: "week", label: qsTr("7 d", "days")},
                  {value: "month", label: qsTr("30 d", "days")}, {value: "all", label: qsTr("All")}]
        value: App.history.period
        onChosen: value => App.history.period = value
    }
    Digits {
        y: 76
        anchors.left: parent.left
        role: "numeralLarge"
        pixelSize: Math.min(46, Math.floor(196 / (text.length * 0.56)))
        text: App.history.total
    }
    Txt {
        y: 126
        anchors.left: parent.left
        role: "note"
        text: App.history.totalNote
        color: Theme.color.text3
    }
    HistoryBars {
        y: 150
        anchors.left: parent.left
        width: 188
        height: 70
    }
}
