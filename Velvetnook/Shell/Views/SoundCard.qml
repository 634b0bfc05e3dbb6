// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One sound: in the mix with its loudness, or waiting.
FocusScope {
    id: root

    property string soundId
    property string title
    property string iconName
    property bool isIn: false
    property bool isPlaying: false
    property real volume: 0.5

    implicitHeight: 82

    T.AbstractButton {
        id: button

        anchors.fill: parent
        focus: true
        hoverEnabled: true
        focusPolicy: Qt.TabFocus
        scale: down && !Theme.reducedMotion ? 0.97 : 1
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        Keys.onSpacePressed: App.sounds.playOrPause() // of all, here as everywhere in the view
        Accessible.name: root.title
        Accessible.checkable: true
        Accessible.checked: root.isIn
        Accessible.onPressAction: clicked()
        onClicked: App.sounds.toggle(root.soundId)
        background: Rectangle {
            radius: 16
            color: root.isIn ? Theme.color.soft2 : button.down ? Theme.color.bg3
                 : button.hovered ? Theme.color.bg2 : Theme.color.bg1
            Behavior on color { enabled: root.visible; HoverFade {} }
            FocusRing { shown: button.visualFocus; corner: 16 }
        }
        Behavior on scale { PressMotion {} }
    }
    Icon {
        anchors.left: parent.left
        anchors.leftMargin: 14
        y: 11
        name: root.iconName
        size: 22
        color: root.isIn ? Theme.color.accent : Theme.color.text3
    }
    Icon {
        visible: root.isIn
        anchors.right: parent.right
        anchors.rightMargin: 14
        y: 14
        name: root.isPlaying ? "pause" : "play"
        size: 16
        color: Theme.color.accent
    }
    Txt {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 14
        y: 40
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "strong"
        lineHeight: 18
        text: root.title
        color: root.isIn ? Theme.color.text1 : Theme.color.text2
        Accessible.ignored: true
    }
    SeekBar {
        visible: root.isIn
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 14
        y: 56
        track: Theme.color.bg3
        value: root.volume
        name: qsTr("Volume of %1").arg(root.title)
        onMoved: value => App.sounds.setSoundVolume(root.soundId, value)
    }
}
