// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The next prayer and how long until then.
Card {
    id: root

    readonly property var parts: App.home.prayerLeft
    readonly property string spoken: parts.map(part => part.value + " " + part.unit).join(" ")

    interactive: true
    name: qsTr("%1: %2, %3", "next prayer, time left, time").arg(App.home.prayerTitle)
          .arg(spoken).arg(App.home.prayerNote)
    onClicked: App.panel.openTool("prayer")

    CardLabel {
        width: parent.width
        iconName: "prayer"
        text: App.home.prayerTitle
    }
    Row {
        anchors.left: parent.left
        y: 26
        spacing: 5

        Repeater {
            model: root.parts
            delegate: Row {
                id: part

                required property var modelData

                spacing: 5

                Digits {
                    id: value

                    role: "numeral"
                    text: part.modelData.value
                    Accessible.ignored: true
                }
                Txt {
                    visible: text !== ""
                    y: value.baselineOffset - baselineOffset
                    role: "label"
                    text: part.modelData.unit
                    color: Theme.color.text2
                    Accessible.ignored: true
                }
            }
        }
    }
    Txt {
        y: root.parts.length > 0 ? 64 : 26
        width: parent.width
        role: "note"
        text: App.home.prayerNote
        color: Theme.color.text3
        wrapMode: root.parts.length > 0 ? Text.NoWrap : Text.Wrap
        Accessible.ignored: true
    }
}
