// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The picture of an item: the icon of a tool, the picture of an application, or its letter on a
// colour of its own.
Rectangle {
    id: root

    property string iconName
    property string iconSource
    property string letter
    property int tint: 0
    property bool lit: false
    property bool pressed: false
    property bool isThere: true

    readonly property list<color> tints: ["#A6C8A0", "#9DBFD9", "#DCC28C", "#E3AEAA", "#BDB6EA"]
    readonly property bool hasPicture: iconSource !== "" && picture.status === Image.Ready
    readonly property bool isLetter: iconName === "" && !hasPicture
    readonly property color rest: isLetter && isThere ? tints[tint] : Theme.color.bg1

    width: 48
    height: 48
    radius: Math.round(width * 15 / 48)
    color: isLetter && isThere ? (lit || pressed ? Qt.darker(rest, pressed ? 1.18 : 1.08) : rest)
         : pressed ? Theme.color.bg3 : lit ? Theme.color.bg2 : rest
    Behavior on color { enabled: root.visible; HoverFade {} }

    Icon {
        visible: root.iconName !== ""
        anchors.centerIn: parent
        name: root.iconName
        size: Math.round(root.width * 22 / 48)
        color: Theme.color.text1
    }
    Image {
        id: picture

        visible: root.hasPicture && root.iconName === ""
        anchors.centerIn: parent
        width: Math.round(root.width * 32 / 48)
        height: width
        sourceSize: Qt.size(width, height)
        source: root.iconSource
        opacity: root.isThere ? 1 : 0.4
        Accessible.ignored: true
    }
    Txt {
        visible: root.isLetter
        anchors.centerIn: parent
        role: "strong"
        pixelSize: Math.round(root.width * 15 / 48)
        font.weight: Font.Bold
        color: root.isThere ? "#12100E" : Theme.color.text4
        text: root.letter
        Accessible.ignored: true
    }
}
