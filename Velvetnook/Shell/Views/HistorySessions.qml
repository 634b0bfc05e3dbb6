// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Finished sessions, the newest first, day by day. Only what shows is made. The day of the
// topmost one stands over the list, the others at the first session of theirs.
ListView {
    id: root

    property string topDay

    function look() {
        const row = itemAt(0, contentY + 1);
        topDay = row ? row.day : "";
    }

    model: App.history.sessions
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    reuseItems: true
    activeFocusOnTab: true
    keyNavigationEnabled: false
    currentIndex: -1
    section.property: "day"
    delegate: Item {
        id: row

        required property int index
        required property string arabic
        required property string title
        required property string count
        required property string target
        required property bool reached
        required property string time
        required property string day

        readonly property bool isNewDay: index > 0 && ListView.previousSection !== ListView.section

        width: root.width
        height: isNewDay ? 68 : 38

        Txt {
            visible: row.isNewDay
            width: parent.width
            height: 30
            verticalAlignment: Text.AlignVCenter
            role: "caption"
            text: row.day
            color: Theme.color.text3
        }
        HistoryRow {
            anchors.bottom: parent.bottom
            width: parent.width
            arabic: row.arabic
            title: row.title
            count: row.count
            target: row.target
            reached: row.reached
            time: row.time
        }
    }
    onContentYChanged: look()
    onCountChanged: Qt.callLater(look)
    Component.onCompleted: Qt.callLater(look)
    Keys.onUpPressed: flick(0, 600)
    Keys.onDownPressed: flick(0, -600)
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Finished sessions")
}
