// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The head of a page behind the overview: the way back, what it is, and what it offers.
Item {
    id: root

    property string title
    property string note
    default property alias trailing: slot.data

    implicitWidth: 600
    implicitHeight: 32

    IconButton {
        id: back

        x: LayoutMirroring.enabled ? parent.width - width + 8 : -8
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "left"
        name: qsTr("Back")
        keyHint: qsTr("Esc", "the key")
        onClicked: App.monitor.showPage("overview")
    }
    Txt {
        id: title

        anchors.left: parent.left
        anchors.leftMargin: 30
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.width - slot.width - 60)
        role: "heading"
        text: root.title
        Accessible.role: Accessible.Heading
    }
    Txt {
        anchors.left: title.right
        anchors.leftMargin: 12
        anchors.right: slot.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        role: "note"
        text: root.note
        color: Theme.color.text3
    }
    Row {
        id: slot

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 6
    }
}
