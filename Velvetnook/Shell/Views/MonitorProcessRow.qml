// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One process of an application.
Rectangle {
    id: root

    required property string rowId
    required property string title
    required property string note
    required property string cpu
    required property string memory
    required property string disk
    required property bool isHot
    required property bool isParted
    required property string spoken
    property bool isCurrent: false

    height: 32
    radius: 8
    color: area.hovered || isCurrent ? Theme.color.bg1 : "transparent"
    Accessible.role: Accessible.ListItem
    Accessible.name: spoken

    HoverHandler { id: area }
    FocusRing {
        shown: root.isCurrent
        corner: 8
        isInner: true
    }
    Txt {
        id: name

        anchors.left: parent.left
        anchors.leftMargin: root.isParted ? 16 : 4
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, 210)
        horizontalAlignment: Text.AlignLeft
        role: root.isParted ? "body" : "strong"
        text: root.title
        Accessible.ignored: true
    }
    Txt {
        anchors.left: name.right
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        role: "caption"
        text: root.note
        color: Theme.color.text3
        Accessible.ignored: true
    }
    Txt {
        id: load

        anchors.right: size.left
        anchors.verticalCenter: parent.verticalCenter
        width: 60
        horizontalAlignment: Text.AlignRight
        role: "label"
        text: root.cpu
        color: root.isHot ? Theme.color.warn : Theme.color.text1
        Accessible.ignored: true
    }
    Txt {
        id: size

        anchors.right: traffic.left
        anchors.verticalCenter: parent.verticalCenter
        width: 70
        horizontalAlignment: Text.AlignRight
        role: "label"
        font.weight: Font.Normal
        text: root.memory
        color: Theme.color.text2
        Accessible.ignored: true
    }
    Txt {
        id: traffic

        anchors.right: parent.right
        anchors.rightMargin: 70
        anchors.verticalCenter: parent.verticalCenter
        width: 80
        horizontalAlignment: Text.AlignRight
        role: "label"
        font.weight: Font.Normal
        text: root.disk
        color: Theme.color.text3
        Accessible.ignored: true
    }
    Row {
        visible: area.hovered || root.isCurrent
        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        IconButton {
            size: 28
            iconName: "stop"
            name: qsTr("Quit %1").arg(root.title)
            keyHint: qsTr("Del", "the key")
            onClicked: App.monitor.askToEnd(root.rowId, false)
        }
        IconButton {
            size: 28
            iconName: "x"
            ink: Theme.color.danger
            name: qsTr("Kill %1").arg(root.title)
            onClicked: App.monitor.askToEnd(root.rowId, true)
        }
    }
}
