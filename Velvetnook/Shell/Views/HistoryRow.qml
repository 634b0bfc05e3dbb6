// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One finished session.
Item {
    id: root

    required property string arabic
    required property string title
    required property string count
    required property string target
    required property bool reached
    required property string time

    height: 38
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2 at %3", "finished session").arg(LayoutMirroring.enabled ? arabic : title)
                     .arg(target === "" ? count : qsTr("%1 of %2").arg(count).arg(target)).arg(time)

    PhraseWords {
        anchors.left: parent.left
        anchors.right: number.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        arabic: root.arabic
        title: root.title
    }
    Row {
        id: number

        anchors.right: mark.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter

        Txt {
            role: "strong"
            text: root.count
            Accessible.ignored: true
        }
        Txt {
            visible: root.target !== ""
            // Numbers and a stroke alone have no direction of their own.
            text: (LayoutMirroring.enabled ? "\u200F" : "")
                  + qsTr(" / %1", "target behind a count").arg(root.target)
            color: Theme.color.text3
            Accessible.ignored: true
        }
    }
    Item {
        id: mark

        anchors.right: when.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: 16
        height: 16
        Icon {
            visible: root.reached
            name: "check"
            size: 15
            color: Theme.color.accent
        }
    }
    Txt {
        id: when

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(40, implicitWidth)
        role: "note"
        text: root.time
        color: Theme.color.text3
        horizontalAlignment: Text.AlignRight
        Accessible.ignored: true
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.color.line
    }
}
