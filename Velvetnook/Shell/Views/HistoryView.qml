// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What was finished: totals at the start, the sessions or their phrases at the end.
Item {
    id: root

    readonly property Item mainItem: sessions.visible ? sessions : null
    readonly property string footerText: App.history.footer
    readonly property string footerLink: App.history.isOff ? qsTr("Counter settings…") : ""
    readonly property var footerKeys: [{key: "H", text: qsTr("back to the counter")}]

    signal footerLinkClicked

    onFooterLinkClicked: App.settings.open("general")
    Keys.onPressed: event => {
        if (letters.keyOf(event) === Qt.Key_H || event.key === Qt.Key_Backspace) {
            App.panel.openTool("dhikr");
            event.accepted = true;
        }
    }

    KeyLetters { id: letters }

    // What loses the focus by going out of sight must not take the keys with it.
    Connections {
        target: App.history
        function onByPhraseChanged() { root.forceActiveFocus(Qt.OtherFocusReason); }
    }

    implicitWidth: 600
    implicitHeight: 220

    HistorySummary {
        anchors.left: parent.left
        width: 200
        height: parent.height
    }
    Item {
        anchors.right: parent.right
        width: 376
        height: parent.height
        visible: !App.history.isEmpty

        Txt {
            anchors.left: parent.left
            anchors.right: lists.left
            anchors.rightMargin: 12
            height: 26
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignLeft
            role: "caption"
            text: App.history.byPhrase ? "" : sessions.topDay
            color: Theme.color.text3
        }
        Row {
            id: lists

            anchors.right: parent.right
            spacing: 6

            Chip {
                small: true
                text: qsTr("Sessions")
                chosen: !App.history.byPhrase
                onClicked: App.history.byPhrase = false
            }
            Chip {
                small: true
                text: qsTr("By phrase")
                chosen: App.history.byPhrase
                onClicked: App.history.byPhrase = true
            }
        }
        HistorySessions {
            id: sessions

            visible: !App.history.byPhrase
            y: 28
            width: parent.width
            height: parent.height - 28
        }
        HistoryPhrases {
            visible: App.history.byPhrase
            y: 34
            width: parent.width
            height: parent.height - 34
        }
    }
    AvailabilityView {
        visible: App.history.isEmpty
        anchors.right: parent.right
        width: 376
        height: parent.height
        availability: "empty"
        iconName: "history"
        message: qsTr("Nothing finished yet")
        note: App.history.isOff ? qsTr("The history is off.")
                                : qsTr("A session that you finish is kept here.")
    }
}
