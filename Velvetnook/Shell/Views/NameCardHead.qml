// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What is special about the one on the card, and its marks.
Item {
    id: root

    property bool isOverText: false

    signal countWanted

    height: 38

    Rectangle {
        visible: root.isOverText
        anchors.fill: parent
        radius: Theme.radius.cardLarge
        color: Theme.color.bg1
    }
    Chip {
        visible: App.names.isName
        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 10
        small: true
        chosen: App.names.isNameOfTheDay
        text: qsTr("Name of the day")
        onClicked: App.names.openToday()
    }
    Chip {
        visible: !App.names.isName
        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 10
        small: true
        iconName: "dhikr"
        chosen: App.names.isCounted
        text: App.names.isCounted ? qsTr("In the counter") : qsTr("Count this")
        onClicked: root.countWanted()
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 8
        y: 8

        IconButton {
            visible: !App.names.isName
            size: 30
            iconName: "star"
            iconFilled: App.names.isFavourite
            ink: App.names.isFavourite ? Theme.color.accent : Theme.color.text2
            name: App.names.isFavourite ? qsTr("Remove from favourites") : qsTr("Add to favourites")
            keyHint: "S"
            onClicked: App.names.toggleFavourite()
        }
        IconButton {
            size: 30
            iconName: "pin"
            ink: App.names.isPinned ? Theme.color.accent : Theme.color.text2
            name: App.names.isPinned ? qsTr("Unpin from the notch") : qsTr("Pin to the notch")
            keyHint: "P"
            onClicked: App.names.togglePin()
        }
    }
}
