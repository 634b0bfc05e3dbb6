// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Back, play or pause, on; and how loud.
FocusScope {
    id: root

    readonly property QtObject model: App.music

    implicitHeight: 48
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    Row {
        spacing: 10
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            size: 40
            iconSize: 20
            enabled: root.model.canPrevious
            iconName: "prev"
            name: qsTr("Previous")
            keyHint: "B"
            onClicked: root.model.previous()
        }
        PrimaryButton {
            focus: true
            width: 48
            height: 48
            corner: 24
            horizontalPadding: 0
            iconSize: 22
            iconName: root.model.isPlaying ? "pause" : "play"
            Accessible.name: root.model.isPlaying ? qsTr("Pause") : qsTr("Play")
            onClicked: root.model.playPause()
        }
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            size: 40
            iconSize: 20
            enabled: root.model.canNext
            iconName: "next"
            name: qsTr("Next")
            keyHint: "N"
            onClicked: root.model.next()
        }
    }
    Row {
        visible: root.model.hasVolume
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6
        IconButton {
            anchors.verticalCenter: parent.verticalCenter
            size: 30
            iconName: root.model.volume > 0 ? "volume" : "mute"
            iconSize: 18
            ink: Theme.color.text3
            name: root.model.volume > 0 ? qsTr("Mute") : qsTr("Unmute")
            keyHint: "M"
            onClicked: root.model.toggleMute()
        }
        SeekBar {
            anchors.verticalCenter: parent.verticalCenter
            width: 84
            turns: false
            value: root.model.volume
            fill: Theme.color.text2
            name: qsTr("Volume")
            valueText: root.model.volumeText
            onMoved: value => root.model.setVolume(value)
        }
    }
}
