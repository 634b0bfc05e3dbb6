// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The title of a page over the items, with the way back.
Item {
    id: root

    property string title
    property alias main: way

    signal done

    implicitHeight: 32

    IconButton {
        id: way

        anchors.left: parent.left
        anchors.leftMargin: -6
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "left"
        name: qsTr("Back")
        keyHint: qsTr("Esc")
        onClicked: root.done()
    }
    Txt {
        anchors.left: way.right
        anchors.leftMargin: 4
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        role: "heading"
        text: root.title
        Accessible.role: Accessible.Heading
    }
}
