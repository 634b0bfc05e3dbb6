// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The phrase that is counted, between the ways to the one before and the one after. A long one
// scrolls.
Card {
    id: root

    readonly property bool isArabicAlone: App.counter.transliteration === ""
                                          && App.counter.translation === ""

    function scroll(by) {
        body.contentY = Math.max(0, Math.min(body.contentY + by,
                                             body.contentHeight - body.height));
    }

    corner: Theme.radius.cardLarge
    padding: 0

    ScrollBody {
        id: body

        x: 38
        width: root.width - 76
        height: root.height
        contentHeight: words.isWhole ? height : words.implicitHeight + 12

        Column {
            id: words

            readonly property bool isWhole: implicitHeight <= body.height

            y: isWhole ? Math.round((body.height - implicitHeight) / 2) : 4
            width: body.width

            ArabicText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: App.counter.arabic
                pixelSize: Math.round((root.isArabicAlone ? 44 : 36) * Theme.phraseScale)
                maximumWidth: body.width
                onTextChanged: body.contentY = 0
            }
            Item {
                width: 1
                height: -4
            }
            Txt {
                visible: text !== ""
                width: parent.width
                role: "strong"
                pixelSize: 15
                lineHeight: 20
                text: App.counter.transliteration
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Txt {
                visible: text !== ""
                width: parent.width
                text: App.counter.translation
                color: Theme.color.text2
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }
    }
    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconSize: 16
        iconName: "left"
        name: qsTr("Phrase before")
        keyHint: "←"
        onClicked: App.counter.selectNext(-1)
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconSize: 16
        iconName: "right"
        name: qsTr("Next phrase")
        keyHint: "→"
        onClicked: App.counter.selectNext(1)
    }
}
