// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where things are put down on the shelf.
Item {
    id: root

    property bool isTarget: false // something is over it
    property bool isAlone: false  // the shelf is empty

    Accessible.role: Accessible.StaticText
    Accessible.name: words.text

    DashedFrame {
        anchors.fill: parent
        line: root.isTarget ? Theme.color.accent : Theme.color.line2
    }
    Column {
        anchors.centerIn: parent
        spacing: 6
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 10
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "shelf"
                size: 20
                color: root.isTarget ? Theme.color.accent : Theme.color.text2
            }
            Txt {
                id: words

                anchors.verticalCenter: parent.verticalCenter
                color: root.isTarget ? Theme.color.text1 : Theme.color.text2
                text: root.isTarget ? qsTr("Let go to keep it close")
                                    : qsTr("Drop files here to keep them close")
                Accessible.ignored: true
            }
        }
        Txt {
            visible: root.isAlone
            anchors.horizontalCenter: parent.horizontalCenter
            role: "note"
            color: Theme.color.text3
            text: qsTr("Pictures, links and texts too. Files stay where they are.")
        }
    }
}
