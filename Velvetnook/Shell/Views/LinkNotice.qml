// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Why there is no collection of duas here yet, and what there is.
Item {
    id: root

    Column {
        width: parent.width
        spacing: 10
        Txt {
            width: parent.width
            role: "note"
            lineHeight: 17
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            color: Theme.color.text2
            text: qsTr("The built-in dua collection remains unavailable until its source, translation and review records are complete.")
        }
        Txt {
            width: parent.width
            role: "note"
            lineHeight: 17
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            color: Theme.color.text3
            text: qsTr("This collection is awaiting source, translation, count-reference and qualified-review records. No new devotional excerpts are included in this build.")
        }
    }
    ButtonBase {
        id: button

        anchors.bottom: parent.bottom
        width: parent.width
        height: 44
        small: true
        text: qsTr("Open the existing dhikr starter collection")
        onClicked: App.panel.openTool("dhikr")
        contentItem: Item {
            Icon {
                id: sign

                anchors.left: parent.left
                anchors.leftMargin: 2
                anchors.verticalCenter: parent.verticalCenter
                name: "dhikr"
                size: 17
            }
            Txt {
                anchors.left: sign.right
                anchors.leftMargin: 9
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                role: "label"
                lineHeight: 16
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
                text: button.text
                Accessible.ignored: true
            }
        }
    }
}
