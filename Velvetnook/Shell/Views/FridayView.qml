// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The one invitation of a Friday, with the day and the time of Dhuhr beside it.
Item {
    id: root

    readonly property Item mainItem: begin
    readonly property string footerText: App.friday.footer
    readonly property string footerLink: qsTr("Friday settings…")

    signal footerLinkClicked

    onFooterLinkClicked: App.settings.open("reminders")

    implicitWidth: 600
    implicitHeight: 220

    Card {
        anchors.left: parent.left
        width: parent.width - 200
        height: parent.height
        corner: Theme.radius.cardLarge
        padding: 0

        Column {
            anchors.centerIn: parent
            width: parent.width - 28

            ArabicText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: App.friday.arabic
                pixelSize: Math.round(32 * Theme.phraseScale)
                maximumWidth: parent.width
            }
            Item {
                width: 1
                height: 4
            }
            Txt {
                visible: text !== ""
                width: parent.width
                role: "strong"
                pixelSize: 15
                lineHeight: 20
                text: App.friday.transliteration
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Txt {
                visible: text !== ""
                width: parent.width
                text: App.friday.translation
                color: Theme.color.text2
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Item {
                width: 1
                height: 16
            }
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 8

                PrimaryButton {
                    id: begin

                    iconName: "dhikr"
                    iconSize: 17
                    text: qsTr("Begin counting")
                    onClicked: {
                        App.friday.beginCounting();
                        App.panel.openTool("dhikr");
                    }
                }
                GhostButton {
                    visible: App.friday.isFriday
                    text: qsTr("Not today")
                    onClicked: {
                        App.friday.markShown();
                        App.panel.openTool("home");
                    }
                }
            }
        }
    }
    Card {
        anchors.right: parent.right
        width: 176
        height: 91

        Txt {
            id: today

            role: "label"
            text: qsTr("Today")
            color: Theme.color.text3
        }
        Txt {
            id: weekday

            anchors.top: today.bottom
            anchors.topMargin: 2
            role: "title"
            text: App.friday.weekday
        }
        Txt {
            anchors.top: weekday.bottom
            width: parent.width
            role: "note"
            text: App.friday.islamicDate
            color: Theme.color.text3
        }
    }
    Card {
        y: 101
        anchors.right: parent.right
        width: 176
        height: parent.height - 101

        CardLabel {
            id: label

            width: parent.width
            iconName: "prayer"
            text: qsTr("Dhuhr")
        }
        Txt {
            id: time

            visible: text !== ""
            anchors.top: label.bottom
            anchors.topMargin: 6
            role: "numeral"
            pixelSize: 32
            text: App.friday.dhuhr
        }
        Txt {
            anchors.top: time.visible ? time.bottom : label.bottom
            anchors.topMargin: time.visible ? 0 : 8
            width: parent.width
            role: "note"
            text: App.friday.dhuhrNote
            color: Theme.color.text3
            wrapMode: Text.Wrap
        }
    }
}
