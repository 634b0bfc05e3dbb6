// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A name and some controls beside it.
Item {
    id: root

    property string title
    property real cell: 0 // the width of each place; 0: their own
    default property alias content: row.data

    implicitWidth: parent ? parent.width : 700
    implicitHeight: Math.max(52, row.implicitHeight + 8)

    Txt {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 118
        role: "label"
        font.weight: Font.DemiBold
        text: root.title
    }
    Row {
        id: row

        anchors.left: parent.left
        anchors.leftMargin: 138
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14
    }
}
