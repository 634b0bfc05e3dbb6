// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One of the six times. Past ones step back, the current one bears a dot, the next is filled.
Rectangle {
    id: root

    property string name
    property string time
    property string tone // past, current, coming or next
    property string spoken

    readonly property bool isNext: tone === "next"
    readonly property bool isPast: tone === "past"

    implicitHeight: 64
    radius: 14
    color: isNext ? Theme.color.soft2 : Theme.color.bg1
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: dot.visible ? dot.left : parent.right
        anchors.rightMargin: 6
        y: 11
        role: "label"
        color: root.isNext ? Theme.color.accent
             : root.isPast ? Theme.color.text3 : Theme.color.text2
        text: root.name
        Accessible.ignored: true
    }
    Rectangle {
        id: dot

        visible: root.tone === "current"
        anchors.right: parent.right
        anchors.rightMargin: 12
        y: 16
        width: 6
        height: 6
        radius: 3
        color: Theme.color.accent
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 12
        y: 32
        role: "heading"
        font.weight: Font.Medium
        color: root.isPast ? Theme.color.text3 : Theme.color.text1
        text: root.time
        Accessible.ignored: true
    }
}
