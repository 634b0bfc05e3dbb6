// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A column for each of the next days.
Row {
    id: root

    property color ink: Theme.color.accent
    property color words: Theme.color.text1

    Repeater {
        model: App.weather.days
        delegate: Column {
            id: day

            required property var modelData

            width: root.width / 7
            topPadding: 4
            spacing: 8
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("%1: %2, %3 to %4").arg(modelData.label).arg(modelData.words)
                             .arg(modelData.low).arg(modelData.high)

            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                role: "label"
                text: day.modelData.label
                color: Theme.color.text2
                Accessible.ignored: true
            }
            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: day.modelData.icon
                size: 24
                color: root.ink
            }
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                role: "strong"
                text: day.modelData.high
                color: root.words
                Accessible.ignored: true
            }
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                role: "label"
                text: day.modelData.low
                color: Theme.color.text3
                Accessible.ignored: true
            }
        }
    }
}
