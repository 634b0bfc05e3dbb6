// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What each phrase adds up to in the chosen time, the most counted first.
ListView {
    id: root

    model: App.history.phrases
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: false
    Keys.onUpPressed: flick(0, 600)
    Keys.onDownPressed: flick(0, -600)
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Totals by phrase")

    delegate: Item {
        id: row

        required property var modelData

        width: root.width
        height: 38
        Accessible.role: Accessible.ListItem
        Accessible.name: qsTr("%1: %2 in %3", "total of a phrase")
                         .arg(LayoutMirroring.enabled ? modelData.arabic : modelData.title)
                         .arg(modelData.count).arg(modelData.note)

        PhraseWords {
            anchors.left: parent.left
            anchors.right: total.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            arabic: row.modelData.arabic
            title: row.modelData.title
        }
        Txt {
            id: total

            anchors.right: sessions.left
            anchors.verticalCenter: parent.verticalCenter
            role: "strong"
            text: row.modelData.count
            Accessible.ignored: true
        }
        Txt {
            id: sessions

            anchors.right: parent.right
            anchors.rightMargin: 4
            anchors.verticalCenter: parent.verticalCenter
            width: 92
            role: "note"
            text: row.modelData.note
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
    Txt {
        visible: root.count === 0
        y: 12
        text: qsTr("Nothing finished in this time")
        color: Theme.color.text2
    }
}
