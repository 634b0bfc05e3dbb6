// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One figure of the weather with what it is.
Rectangle {
    id: root

    property string iconName
    property string value
    property string name
    property color ink: Theme.color.text1

    height: 52
    radius: 14
    color: Theme.color.bg1
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("%1: %2").arg(name).arg(value)

    Icon {
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: root.iconName
        size: 19
        color: Theme.color.text3
    }
    Column {
        anchors.left: parent.left
        anchors.leftMargin: 41
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter

        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            role: "strong"
            lineHeight: 17
            text: root.value
            color: root.ink
            Accessible.ignored: true
        }
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "caption"
            text: root.name
            color: Theme.color.text3
            Accessible.ignored: true
        }
    }
}
