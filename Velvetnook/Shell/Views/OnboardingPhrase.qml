// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The second step: a phrase for the strip and the counter, and its target.
Item {
    id: root

    readonly property QtObject model: App.onboarding

    OnboardingHeading {
        id: heading

        width: parent.width
        title: qsTr("Choose a phrase to begin with")
        note: qsTr("It rests in the strip. You can change it at any time.")
    }
    Grid {
        id: cards

        anchors.top: heading.bottom
        anchors.topMargin: 18
        width: parent.width
        columns: 2
        spacing: 10

        Repeater {
            model: root.model.phrases
            delegate: Card {
                id: card

                required property var modelData

                readonly property bool hasWords: modelData.transliteration !== ""

                width: (cards.width - 10) / 2
                height: 80
                padding: 16
                interactive: true
                selected: modelData.phrase === root.model.phrase
                name: hasWords ? modelData.transliteration : modelData.arabic
                onClicked: root.model.choosePhrase(modelData.phrase)

                Column {
                    visible: card.hasWords
                    anchors.left: parent.left
                    anchors.right: arabic.left
                    anchors.rightMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    Txt {
                        width: parent.width
                        role: "strong"
                        text: card.modelData.transliteration
                    }
                    Txt {
                        width: parent.width
                        role: "note"
                        color: card.selected ? Theme.color.text2 : Theme.color.text3
                        text: card.modelData.translation
                    }
                }
                ArabicText {
                    id: arabic

                    anchors.right: card.hasWords ? parent.right : undefined
                    anchors.horizontalCenter: card.hasWords ? undefined : parent.horizontalCenter
                    anchors.verticalCenter: parent.verticalCenter
                    pixelSize: card.hasWords ? 22 : 24
                    byInk: true
                    text: card.modelData.arabic
                }
            }
        }
    }
    Row {
        anchors.left: parent.left
        anchors.top: cards.bottom
        anchors.topMargin: 18
        spacing: 8

        Txt {
            anchors.verticalCenter: parent.verticalCenter
            width: implicitWidth + 4
            role: "label"
            color: Theme.color.text2
            text: qsTr("Target")
        }
        Repeater {
            model: root.model.targets
            delegate: Chip {
                required property var modelData

                text: modelData.label
                chosen: modelData.value === root.model.target
                onClicked: root.model.chooseTarget(modelData.value)
            }
        }
    }
}
