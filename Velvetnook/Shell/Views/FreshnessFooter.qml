// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The footer of what was fetched: how fresh it is, where it comes from and how to renew it.
Item {
    id: root

    property string text
    property bool isStale: false
    property bool hasDot: text !== ""
    property string source
    property string linkText
    property string linkIcon: "refresh"
    property string secondText

    signal linkClicked
    signal secondClicked

    implicitWidth: 600
    implicitHeight: 30
    width: 600
    height: 30

    Rectangle {
        id: dot

        visible: root.hasDot && root.text !== ""
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: root.isStale ? Theme.color.warn : Theme.color.accent
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: dot.visible ? 14 : 0
        anchors.right: end.left
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "note"
        color: Theme.color.text3
        text: root.text
    }
    Row {
        id: end

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14

        Txt {
            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            role: "note"
            color: Theme.color.text3
            text: root.source
        }
        FooterLink {
            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            iconName: root.linkIcon
            text: root.linkText
            onClicked: root.linkClicked()
        }
        FooterLink {
            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            text: root.secondText
            onClicked: root.secondClicked()
        }
    }
}
