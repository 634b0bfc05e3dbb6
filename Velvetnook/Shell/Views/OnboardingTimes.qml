// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The day's times one below the other, or what they wait for.
Rectangle {
    id: root

    readonly property QtObject prayer: App.settings.prayer

    width: 188
    height: 212
    radius: Theme.radius.cardLarge
    color: Theme.color.bg1

    Column {
        visible: root.prayer.times.length > 0
        x: 16
        y: 16
        width: parent.width - 32

        Repeater {
            model: root.prayer.times
            delegate: Item {
                id: line

                required property var modelData

                width: parent.width
                height: 30
                Txt {
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    role: "strong"
                    color: line.modelData.isNext ? Theme.color.accent : Theme.color.text2
                    text: line.modelData.name
                }
                Txt {
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    role: "strong"
                    text: line.modelData.time
                }
            }
        }
    }
    AvailabilityView {
        visible: root.prayer.times.length === 0
        anchors.fill: parent
        anchors.margins: 12
        availability: "empty"
        iconName: "prayer"
        message: qsTr("Your times stand here")
        note: root.prayer.timesMessage
    }
}
