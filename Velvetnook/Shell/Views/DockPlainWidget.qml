// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What one tool has to tell at a glance. A tool that tells nothing here is a way to it.
DockWidgetCard {
    id: root

    readonly property QtObject values: App.dock.values
    readonly property var lines: ({
        prayer: [values.prayerTitle, values.prayerLeft.map(part => part.value + " " + part.unit).join(" "),
                 values.prayerNote],
        timers: [values.timerTitle, values.timerText, values.timerNote],
        dhikr: [App.counter.title, App.counter.countText, values.counterNote],
        names: [qsTr("Today’s Name"), "", values.nameTitle]
    })[tool] ?? [title, "", summary]

    readonly property bool isRunning: tool === "timers" || tool === "dhikr"

    name: lines.filter(line => line !== "").join(", ")
    implicitHeight: Math.max(62, column.implicitHeight + 24)

    Icon {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: root.iconName
        size: 18
        color: Theme.color.text3
    }
    Column {
        id: column

        anchors.left: sign.right
        anchors.leftMargin: 14
        anchors.right: tail.left
        anchors.rightMargin: tail.width > 0 ? 10 : 0
        anchors.verticalCenter: parent.verticalCenter

        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "strong"
            lineHeight: 18
            text: root.lines[0]
            Accessible.ignored: true
        }
        Txt {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "note"
            text: root.lines[2]
            color: Theme.color.text3
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Item {
        id: tail

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: root.tool === "names" ? arabic.width : root.isRunning ? value.width : plain.width
        height: parent.height

        Txt {
            id: plain

            visible: !root.isRunning
            anchors.verticalCenter: parent.verticalCenter
            role: "strong"
            text: root.lines[1]
            Accessible.ignored: true
        }
        Digits {
            id: value

            visible: root.isRunning
            anchors.verticalCenter: parent.verticalCenter
            role: "strong"
            pixelSize: 13
            text: root.lines[1]
            Accessible.ignored: true
        }
        ArabicText {
            id: arabic

            visible: root.tool === "names"
            anchors.verticalCenter: parent.verticalCenter
            text: root.tool === "names" ? root.values.nameArabic : ""
            pixelSize: 22
            Accessible.ignored: true
        }
    }
}
