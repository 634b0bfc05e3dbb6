// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The phrase that is counted and how far it has come.
Card {
    id: root

    interactive: true
    padding: 0
    name: qsTr("Counter: %1, %2").arg(App.counter.title).arg(App.home.counterNote)
    onClicked: App.panel.openTool("dhikr")

    BeadRing {
        id: ring

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        diameter: 76
        count: App.counter.count
        target: App.counter.target
        paused: App.counter.isPaused
        Accessible.ignored: true
    }
    Digits {
        anchors.centerIn: ring
        role: "numeral"
        pixelSize: Math.min(26, Math.floor(58 / (text.length * 0.56)))
        text: App.counter.countText
        color: App.counter.isPaused ? Theme.color.text3 : Theme.color.text1
        Accessible.ignored: true
    }
    Item {
        id: words

        anchors.left: ring.right
        anchors.right: go.left
        anchors.leftMargin: 16
        anchors.rightMargin: 8
        height: parent.height

        readonly property bool fits: Theme.ink.advance(App.counter.arabic, 22) <= width

        ArabicText {
            visible: words.fits
            anchors.left: parent.left
            y: App.counter.transliteration === "" ? 18 : 9
            text: App.counter.arabic
            pixelSize: 22
            Accessible.ignored: true
        }
        Txt {
            visible: text !== "" && (words.fits ? App.counter.transliteration !== "" : true)
            y: words.fits ? 54 : 22
            width: parent.width
            role: "strong"
            text: App.counter.transliteration !== "" ? App.counter.transliteration
                                                     : App.counter.title
            wrapMode: words.fits ? Text.NoWrap : Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
        Txt {
            y: 74
            width: parent.width
            role: "note"
            text: App.home.counterNote
            color: Theme.color.text3
            Accessible.ignored: true
        }
    }
    IconButton {
        id: go

        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconSize: 15
        filled: true
        iconName: "play"
        name: qsTr("Go on counting")
        onClicked: {
            App.home.resumeCounter();
            App.panel.openTool("dhikr");
        }
    }
}
