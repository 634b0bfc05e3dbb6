// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How loud each application is.
Item {
    id: root

    readonly property QtObject mixer: App.monitor.mixer
    readonly property Item mainItem: rows

    Component.onDestruction: App.monitor.mixer.watched = false

    Binding {
        target: root.mixer
        property: "watched"
        value: App.monitor.watched
    }
    MonitorHead {
        width: parent.width
        title: qsTr("Volumes")
        note: qsTr("of each application that has a sound")
    }
    ListView {
        id: rows

        visible: root.mixer.availability === "ready"
        y: 40
        width: parent.width
        height: parent.height - 40
        model: root.mixer
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Volumes")
        delegate: Item {
            id: row

            required property int index
            required property string title
            required property string note
            required property real level
            required property string levelText
            required property bool isMuted
            required property bool isPlaying

            width: rows.width
            height: 44

            Column {
                anchors.left: parent.left
                anchors.right: mute.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter

                Txt {
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    role: "strong"
                    lineHeight: 18
                    text: row.title
                    color: row.isPlaying ? Theme.color.text1 : Theme.color.text3
                }
                Txt {
                    visible: text !== ""
                    width: parent.width
                    horizontalAlignment: Text.AlignLeft
                    role: "note"
                    lineHeight: 16
                    text: row.note
                    color: Theme.color.text3
                }
            }
            IconButton {
                id: mute

                anchors.right: slider.left
                anchors.rightMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                size: 30
                iconName: row.isMuted ? "mute" : "volume"
                name: (row.isMuted ? qsTr("Unmute %1") : qsTr("Mute %1")).arg(row.title)
                onClicked: root.mixer.setMuted(row.index, !row.isMuted)
            }
            ValueSlider {
                id: slider

                anchors.right: figure.left
                anchors.rightMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                width: 220
                name: qsTr("Volume of %1").arg(row.title)
                valueText: row.levelText
                from: 0
                to: 1
                step: 0.05
                value: row.level
                onMoved: value => root.mixer.setLevel(row.index, value)
            }
            Txt {
                id: figure

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                width: 52
                horizontalAlignment: Text.AlignRight
                role: "label"
                text: row.levelText
                color: Theme.color.text2
            }
        }
    }
    AvailabilityView {
        visible: !rows.visible
        y: 40
        width: parent.width
        height: parent.height - 40
        availability: root.mixer.availability
        iconName: "volume"
        message: availability === "empty" ? qsTr("No application has a sound now") : root.mixer.problem
    }
}
