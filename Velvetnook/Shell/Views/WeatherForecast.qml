// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the forecast says. One that has grown old steps back by a tone.
FocusScope {
    id: root

    readonly property QtObject model: App.weather
    property bool showsDays: false

    signal daysWanted(bool on)
    signal placeWanted

    readonly property bool isStale: model.availability === "stale"
    readonly property color first: isStale ? Theme.color.text2 : Theme.color.text1
    readonly property color second: isStale ? Theme.color.text3 : Theme.color.text2
    readonly property color mark: isStale ? Theme.color.text3 : Theme.color.accent

    Chip {
        id: place

        anchors.left: parent.left
        anchors.leftMargin: -8
        y: 2
        focus: true
        bare: true
        horizontalPadding: 8
        small: true
        iconName: "place"
        iconSize: 16
        pixelSize: 13
        text: root.model.place
        width: Math.min(implicitWidth, 176)
        Accessible.description: qsTr("Choose another place")
        onClicked: root.placeWanted()
    }
    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 170
        size: 30
        iconName: "calendar"
        ink: root.showsDays ? Theme.color.accent : Theme.color.text2
        name: root.showsDays ? qsTr("The next hours") : qsTr("The next days")
        keyHint: "D"
        onClicked: root.daysWanted(!root.showsDays)
    }
    Item {
        anchors.left: parent.left
        y: 34
        width: 200
        height: 70
        Accessible.role: Accessible.StaticText
        Accessible.name: root.model.spoken

        Digits {
            id: degrees

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.temperature
            color: root.first
            Accessible.ignored: true
        }
        Icon {
            anchors.left: degrees.right
            anchors.leftMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            name: root.model.skyIcon
            size: 46
            color: root.mark
        }
    }
    Txt {
        anchors.left: parent.left
        y: 108
        width: 200
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "strong"
        text: root.model.sky
        color: root.first
        Accessible.ignored: true
    }
    Loader {
        anchors.right: parent.right
        y: 14
        width: 374
        height: 136
        sourceComponent: root.showsDays ? days : hours
    }
    Row {
        y: 166
        spacing: 10
        Repeater {
            model: [{icon: "rain", value: root.model.rain, name: qsTr("Rain")},
                    {icon: "wind", value: root.model.wind, name: qsTr("Wind")},
                    {icon: "drop", value: root.model.humidity, name: qsTr("Humidity")}]
            delegate: WeatherTile {
                required property var modelData

                width: (root.width - 20) / 3
                iconName: modelData.icon
                value: modelData.value
                name: modelData.name
                ink: root.first
            }
        }
    }
    Component {
        id: hours

        WeatherHours { ink: root.mark; words: root.first }
    }
    Component {
        id: days

        WeatherDays { ink: root.mark; words: root.first }
    }
}
