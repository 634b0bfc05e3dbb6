// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Background sounds, each on a card with its own loudness, and one for all.
FocusScope {
    id: root

    readonly property QtObject model: App.sounds
    readonly property Item mainItem: cards
    readonly property string footerText: model.footer
    readonly property var footerKeys: [{key: qsTr("Space", "the key"),
                                        text: model.isPlaying ? qsTr("pause all") : qsTr("play")},
                                       {key: "↑↓", text: qsTr("volume")}]

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Sounds")
    Component.onDestruction: App.sounds.isShown = false
    Keys.onPressed: event => {
        if (event.modifiers & ~Qt.KeypadModifier) {
            return;
        }
        if (event.key === Qt.Key_Space) {
            event.accepted = true;
            model.playOrPause();
        } else if (event.key === Qt.Key_Up || event.key === Qt.Key_Down) {
            event.accepted = true;
            model.setVolume(model.volume + (event.key === Qt.Key_Up ? 0.05 : -0.05));
        }
    }

    Binding {
        target: App.sounds
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    FocusScope {
        id: cards

        width: parent.width
        height: 174
        focus: true

        Grid {
            columns: 4
            spacing: 10
            Repeater {
                model: 8
                delegate: SoundCard {
                    required property int index

                    readonly property var sound: root.model.sounds[index]

                    width: (cards.width - 30) / 4
                    focus: index === 0
                    soundId: sound.id
                    title: sound.title
                    iconName: sound.icon
                    isIn: sound.isIn
                    isPlaying: root.model.isPlaying
                    volume: sound.volume
                }
            }
        }
    }
    IconButton {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: -6
        y: 186
        size: 30
        iconName: root.model.isPlaying ? "pause" : "play"
        enabled: root.model.sounds.some(sound => sound.isIn)
        name: root.model.isPlaying ? qsTr("Pause all") : qsTr("Play the mix")
        keyHint: qsTr("Space", "the key")
        onClicked: root.model.playOrPause()
    }
    SeekBar {
        anchors.left: sign.right
        anchors.leftMargin: 8
        anchors.right: percent.left
        anchors.rightMargin: 14
        y: 190
        value: root.model.volume
        name: qsTr("Volume of all")
        valueText: root.model.volumeText
        onMoved: value => root.model.setVolume(value)
    }
    Txt {
        id: percent

        anchors.right: sleep.left
        anchors.rightMargin: 14
        y: 193
        width: 34
        role: "label"
        color: Theme.color.text2
        text: root.model.volumeText
        Accessible.ignored: true
    }
    Chip {
        id: sleep

        anchors.right: parent.right
        y: 188
        small: true
        iconName: "timers"
        text: root.model.sleepText
        onClicked: menu.popup(0, -menu.implicitHeight - 6)

        PopupMenu {
            id: menu

            items: root.model.sleepChoices
            onChosen: index => root.model.setSleepMinutes(root.model.sleepChoices[index].value)
        }
    }
}
