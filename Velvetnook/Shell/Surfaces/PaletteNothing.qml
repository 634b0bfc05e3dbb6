// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Nothing was found: what else could be typed.
Item {
    implicitHeight: 140

    Column {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 4
        width: parent.width - 40
        spacing: 6

        Icon {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "search"
            size: 26
            color: Theme.color.text3
        }
        Txt {
            width: parent.width
            role: "strong"
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Nothing here by that name")
        }
        Txt {
            width: parent.width
            role: "note"
            color: Theme.color.text3
            horizontalAlignment: Text.AlignHCenter
            text: qsTr("Try a tool, a phrase, “12 km in mi” or an emoji.")
        }
    }
}
