// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The chosen timer: its ring, the time and what can be done with it.
FocusScope {
    id: root

    readonly property Item mainItem: action
    readonly property bool isFinished: App.timers.tone === "finished"
    readonly property var kinds: ["pomodoro", "break", "countdown", "stopwatch", "hydration"]

    function openKinds() {
        menu.popup(0, 32);
    }

    ProgressRing {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 2
        diameter: 164
        thickness: 5
        value: App.timers.progress
        color: App.timers.tone === "paused" ? Theme.color.text3 : Theme.color.accent
        name: App.timers.spoken
    }
    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 45
        width: 132
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            role: "label"
            color: Theme.color.text2
            text: App.timers.title
            Accessible.ignored: true
        }
        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: time.width
            height: 52
            Digits {
                id: time

                anchors.verticalCenter: parent.verticalCenter
                role: "numeralLarge"
                pixelSize: text.length <= 5 ? 46 : text.length <= 7 ? 36 : 28
                color: root.isFinished ? Theme.color.accent
                     : App.timers.tone === "paused" ? Theme.color.text3 : Theme.color.text1
                text: App.timers.timeText
                Accessible.ignored: true
            }
        }
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            role: "note"
            color: Theme.color.text3
            text: App.timers.note
            Accessible.ignored: true
        }
    }
    IconButton {
        id: more

        anchors.left: parent.left
        size: 30
        iconName: "plus"
        name: qsTr("Another timer")
        keyHint: "N"
        onClicked: root.openKinds()
    }
    PopupMenu {
        id: menu

        items: [{text: qsTr("Focus"), iconName: "focus"}, {text: qsTr("Break"), iconName: "cup"},
                {text: qsTr("Timer"), iconName: "hourglass"},
                {text: qsTr("Stopwatch"), iconName: "timers"},
                {text: qsTr("Water"), iconName: "drop"}]
        onChosen: index => App.timers.add(root.kinds[index])
    }
    Row {
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        spacing: 8
        SecondaryButton {
            visible: App.timers.canAdjust && !root.isFinished
            text: qsTr("−5 min")
            horizontalPadding: 8
            onClicked: App.timers.adjust(-5)
        }
        PrimaryButton {
            id: action

            focus: true
            iconName: App.timers.actionIcon
            text: App.timers.actionText
            onClicked: App.timers.toggle(App.timers.chosenId)
        }
        SecondaryButton {
            visible: App.timers.canAdjust && !root.isFinished
            text: qsTr("+5 min")
            horizontalPadding: 8
            onClicked: App.timers.adjust(5)
        }
        SecondaryButton {
            visible: App.timers.offersBreak
            text: App.timers.breakText
            onClicked: App.timers.add("break")
        }
    }
}
