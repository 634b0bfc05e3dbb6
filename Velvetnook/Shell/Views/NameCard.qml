// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One Name or phrase, set large. What has no room scrolls under the head of the card.
Card {
    id: root

    signal countWanted

    corner: Theme.radius.cardLarge
    padding: 0

    ScrollBody {
        id: body

        width: root.width
        height: 182
        contentHeight: Math.max(height, words.y + words.implicitHeight)

        Column {
            id: words

            x: 16
            y: Math.round(Math.max(root.isArabicAlone || script.lineCount > 1 ? 38 : 23,
                                   (200 - implicitHeight) / 2))
            width: body.width - 32

            ArabicText {
                id: script

                anchors.horizontalCenter: parent.horizontalCenter
                text: App.names.arabic
                // A meaning needs the room of two more lines above the foot.
                pixelSize: Math.round((App.names.meaning === "" ? 50 : 40) * Theme.phraseScale)
                maximumWidth: words.width
                onTextChanged: body.contentY = 0
            }
            Item {
                width: 1
                height: App.names.meaning === "" ? -7 : -5
            }
            Txt {
                visible: text !== ""
                width: parent.width
                role: "heading"
                text: App.names.transliteration
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Item {
                width: 1
                height: App.names.meaning === "" ? 2 : 0
            }
            Txt {
                visible: text !== ""
                width: parent.width
                text: App.names.translation
                color: Theme.color.text2
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Item {
                width: 1
                height: 2
            }
            Txt {
                visible: text !== ""
                width: parent.width
                role: "note"
                text: App.names.meaning
                color: Theme.color.text3
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            Item {
                width: 1
                height: 8
            }
        }
    }
    readonly property bool isArabicAlone: App.names.transliteration === ""

    NameCardHead {
        width: root.width
        isOverText: body.contentY > 0
        onCountWanted: root.countWanted()
    }
    NameCardFoot {
        y: 182
        width: root.width
    }
}
