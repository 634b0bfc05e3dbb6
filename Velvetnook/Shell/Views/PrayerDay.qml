// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Today: the next prayer, the sun's way, the Qibla and the six times.
FocusScope {
    id: root

    Column {
        visible: App.prayer.hasNext && App.prayer.hasTimes
        anchors.left: parent.left
        y: 13
        width: 136
        Accessible.role: Accessible.StaticText
        Accessible.name: App.prayer.spoken

        Txt {
            width: parent.width
            role: "label"
            color: Theme.color.text2
            text: App.prayer.nextLabel
            Accessible.ignored: true
        }
        Item {
            width: parent.width
            height: 36
            Txt {
                id: name

                y: 4
                role: "title"
                text: App.prayer.nextName
                Accessible.ignored: true
            }
            Txt {
                anchors.left: name.right
                anchors.leftMargin: 8
                anchors.baseline: name.baseline
                pixelSize: 15
                color: Theme.color.text2
                text: App.prayer.nextTime
                Accessible.ignored: true
            }
        }
        Item {
            width: parent.width
            height: 62
            Digits {
                id: countdown

                anchors.left: parent.left
                role: "numeralLarge"
                pixelSize: text.length > 4 ? 46 : 58
                color: Theme.color.accent
                text: App.prayer.countdown
                Accessible.ignored: true
            }
            Txt {
                anchors.left: countdown.right
                anchors.leftMargin: 7
                anchors.baseline: countdown.baseline
                role: "strong"
                pixelSize: 15
                color: Theme.color.accent
                text: App.prayer.countdownUnit
                Accessible.ignored: true
            }
        }
    }
    Row {
        visible: !App.prayer.hasTimes
        anchors.left: parent.left
        height: 140
        width: 438
        spacing: 14
        Icon {
            anchors.verticalCenter: parent.verticalCenter
            name: "sun"
            size: 28
            color: Theme.color.text3
        }
        Txt {
            anchors.verticalCenter: parent.verticalCenter
            width: 380
            wrapMode: Text.Wrap
            color: Theme.color.text2
            text: App.prayer.message
        }
    }
    DayArc {
        visible: App.prayer.hasTimes
        anchors.left: parent.left
        anchors.leftMargin: 156
        width: 302
        height: 148
        gone: App.prayer.arcGone
        coming: App.prayer.arcComing
        marks: App.prayer.arcMarks
        sun: App.prayer.sun
        hasSun: App.prayer.hasSun
        horizon: 0.69
        mirrored: LayoutMirroring.enabled
        accent: Theme.color.accent
        ground: Theme.color.bg0
        track: Theme.color.bg3
        rest: Theme.color.text3
        line: Theme.color.line2
        body: Theme.color.text1
        Accessible.role: Accessible.Graphic
        Accessible.name: App.prayer.spoken
    }
    IconButton {
        id: more

        anchors.left: parent.left
        anchors.leftMargin: 428
        size: 30
        iconName: "calendar"
        name: qsTr("Week and month")
        keyHint: "W"
        focus: true
        onClicked: App.prayer.page = "week"
    }
    Item {
        anchors.right: parent.right
        width: 122
        height: 140
        QiblaDial {
            id: dial

            anchors.horizontalCenter: parent.horizontalCenter
            y: 2
            width: 114
            height: 114
            degrees: App.prayer.qibla
            north: qsTr("N", "north on a compass")
            accent: Theme.color.accent
            ground: Theme.color.bg0
            card: Theme.color.bg1
            outline: Theme.color.line
            tick: Theme.color.line2
            letter: Theme.color.text2
            Accessible.role: Accessible.Graphic
            Accessible.name: App.prayer.qiblaSpoken
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            y: 117
            spacing: 6
            Txt {
                role: "label"
                color: Theme.color.text3
                text: qsTr("Qibla")
                Accessible.ignored: true
            }
            Txt {
                role: "label"
                text: App.prayer.qiblaText
                Accessible.ignored: true
            }
        }
    }
    Row {
        y: 154
        spacing: 8
        Repeater {
            model: App.prayer.cells
            delegate: PrayerCell {
                required property var modelData

                width: (root.width - 5 * 8) / 6
                name: modelData.name
                time: modelData.time
                tone: modelData.tone
                spoken: modelData.spoken
            }
        }
    }
}
