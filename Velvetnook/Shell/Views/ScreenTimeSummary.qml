// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The time of one day or of the week, and a bar for each of the seven days.
Item {
    id: root

    readonly property Item mainItem: period

    Segmented {
        id: period

        anchors.left: parent.left
        name: qsTr("Period")
        options: [{value: "day", label: qsTr("Day")}, {value: "week", label: qsTr("Week")}]
        value: App.screenTime.period
        onChosen: value => App.screenTime.period = value
    }
    Txt {
        anchors.left: period.right
        anchors.leftMargin: 12
        anchors.right: parent.right
        anchors.verticalCenter: period.verticalCenter
        horizontalAlignment: Text.AlignLeft
        role: "label"
        text: App.screenTime.title
        color: Theme.color.text2
    }
    Row {
        anchors.left: parent.left
        y: 42
        spacing: 5
        Accessible.role: Accessible.StaticText
        Accessible.name: [App.screenTime.hours === "" ? "" : qsTr("%1 h").arg(App.screenTime.hours),
                          qsTr("%1 min").arg(App.screenTime.minutes)].join(" ")

        Digits {
            id: hours

            visible: text !== ""
            role: "numeral"
            text: App.screenTime.hours
            Accessible.ignored: true
        }
        Txt {
            visible: hours.visible
            anchors.baseline: minutes.baseline
            role: "label"
            text: qsTr("h", "hours")
            color: Theme.color.text2
            Accessible.ignored: true
        }
        Digits {
            id: minutes

            role: "numeral"
            text: App.screenTime.minutes
            Accessible.ignored: true
        }
        Txt {
            anchors.baseline: minutes.baseline
            role: "label"
            text: qsTr("min")
            color: Theme.color.text2
            Accessible.ignored: true
        }
    }
    Column {
        y: 82
        width: parent.width

        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "note"
            text: App.screenTime.comparison
            color: Theme.color.text3
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "note"
            text: App.screenTime.stretch
            color: Theme.color.text3
        }
    }
    Row {
        anchors.left: parent.left
        y: 128
        spacing: 10

        Repeater {
            model: App.screenTime.days
            delegate: T.AbstractButton {
                id: day

                required property var modelData
                required property int index

                width: 21
                height: 92
                hoverEnabled: true
                focusPolicy: Qt.TabFocus
                Keys.onReturnPressed: clicked()
                Keys.onEnterPressed: clicked()
                onClicked: App.screenTime.choose(index)
                Accessible.name: modelData.spoken
                Accessible.onPressAction: clicked()

                Rectangle {
                    y: 70 - height
                    width: parent.width
                    height: Math.max(3, day.modelData.share * 66)
                    radius: 5
                    color: day.modelData.isChosen ? Theme.color.accent
                         : day.hovered ? Theme.color.line2 : Theme.color.bg3
                }
                Txt {
                    y: 76
                    anchors.horizontalCenter: parent.horizontalCenter
                    role: "caption"
                    text: day.modelData.label
                    color: day.modelData.isChosen || day.modelData.isToday ? Theme.color.text1
                                                                           : Theme.color.text3
                    elide: Text.ElideNone
                    Accessible.ignored: true
                }
                FocusRing {
                    shown: day.visualFocus
                    corner: 5
                }
            }
        }
    }
}
