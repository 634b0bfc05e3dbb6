// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A newer version whose signature was right: what it brings, and where it is.
Item {
    id: root

    readonly property var updates: App.settings.about.updates

    implicitWidth: parent ? parent.width : 480
    implicitHeight: words.implicitHeight + 24

    Hairline { width: parent.width }
    Column {
        id: words

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.margins: 16
        y: 12
        spacing: 4

        Item {
            width: parent.width
            height: 30
            Txt {
                anchors.left: parent.left
                anchors.right: copy.left
                anchors.rightMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                horizontalAlignment: Text.AlignLeft
                role: "strong"
                text: qsTr("Velvetnook %1 is there").arg(root.updates.version)
            }
            SecondaryButton {
                id: copy

                anchors.right: parent.right
                small: true
                iconName: "copy"
                text: qsTr("Copy its address")
                onClicked: root.updates.copyAddress()
            }
        }
        Txt {
            width: parent.width
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignLeft
            color: Theme.color.text2
            maximumLineCount: 12
            text: root.updates.notes
        }
        Txt {
            width: parent.width
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignLeft
            role: "note"
            color: Theme.color.text2
            text: root.updates.address
        }
        Txt {
            width: parent.width
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignLeft
            role: "note"
            color: Theme.color.text3
            text: qsTr("SHA-256 %1").arg(root.updates.sum)
        }
    }
}
