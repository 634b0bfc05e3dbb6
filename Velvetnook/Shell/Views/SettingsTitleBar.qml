// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The title of a window that draws its own, by which it is moved.
Item {
    id: root

    property string text: qsTr("Velvetnook Settings")

    signal closeWanted

    implicitHeight: 48

    MouseArea {
        anchors.fill: parent
        onPressed: root.Window.window.startSystemMove()
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        role: "strong"
        font.weight: Font.DemiBold
        text: root.text
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "x"
        name: qsTr("Close")
        keyHint: qsTr("Esc")
        onClicked: root.closeWanted()
    }
}
