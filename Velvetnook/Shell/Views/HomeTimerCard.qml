// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The timer that ends first.
Card {
    id: root

    readonly property bool isSet: App.home.timerText !== ""

    interactive: true
    name: qsTr("Timer: %1 %2 %3").arg(App.home.timerTitle).arg(App.home.timerText)
          .arg(App.home.timerNote)
    onClicked: App.panel.openTool("timers")

    CardLabel {
        width: parent.width
        iconName: "timers"
        text: App.home.timerTitle
    }
    Digits {
        visible: root.isSet
        anchors.left: parent.left
        y: 26
        role: "numeral"
        pixelSize: text.length > 5 ? 28 : 34
        text: App.home.timerText
        color: App.home.timerNote !== "" ? Theme.color.text2 : Theme.color.text1
        Accessible.ignored: true
    }
    ProgressBar4 {
        visible: App.home.hasTimerBar
        y: 72
        width: parent.width
        value: App.home.timerShare
        Accessible.ignored: true
    }
    Txt {
        visible: !App.home.hasTimerBar
        y: root.isSet ? 64 : 26
        width: parent.width
        role: "note"
        text: App.home.timerNote
        color: Theme.color.text3
        Accessible.ignored: true
    }
}
