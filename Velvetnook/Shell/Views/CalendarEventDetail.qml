// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// All that is known of one event.
FocusScope {
    id: root

    property string title
    property string span
    property string place
    property string calendar

    signal leaveWanted

    function show(event) {
        title = event.title;
        span = event.span;
        place = event.place;
        calendar = event.calendar;
        back.forceActiveFocus();
    }

    Keys.onEscapePressed: leaveWanted()
    Keys.onReturnPressed: leaveWanted()

    Card {
        anchors.fill: parent
        implicitWidth: 0
        implicitHeight: 0
        corner: 18
        padding: 16

        IconButton {
            id: back

            x: -6
            y: -6
            anchors.left: parent.left
            anchors.leftMargin: -6
            size: 30
            focus: true
            iconName: "left"
            name: qsTr("Back to the day")
            keyHint: "Esc"
            onClicked: root.leaveWanted()
        }
        ScrollBody {
            anchors.fill: parent
            anchors.topMargin: 32
            contentHeight: words.implicitHeight
            Column {
                id: words

                width: parent.width
                spacing: 6
                Txt {
                    width: parent.width
                    role: "heading"
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignLeft
                    text: root.title
                }
                Repeater {
                    model: [{icon: "timers", text: root.span}, {icon: "place", text: root.place},
                            {icon: "calendar", text: root.calendar}]
                    delegate: Item {
                        id: entry

                        required property var modelData

                        visible: modelData.text !== ""
                        width: words.width
                        height: line.implicitHeight
                        Icon {
                            anchors.left: parent.left
                            y: 2
                            name: entry.modelData.icon
                            size: 16
                            color: Theme.color.text3
                        }
                        Txt {
                            id: line

                            anchors.left: parent.left
                            anchors.leftMargin: 26
                            anchors.right: parent.right
                            wrapMode: Text.Wrap
                            horizontalAlignment: Text.AlignLeft
                            color: Theme.color.text2
                            text: entry.modelData.text
                        }
                    }
                }
            }
        }
    }
}
