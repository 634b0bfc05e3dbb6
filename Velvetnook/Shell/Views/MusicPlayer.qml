// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What plays, with its picture and its keys. Media keys do not turn with the language.
FocusScope {
    id: root

    readonly property QtObject model: App.music

    signal tabsWanted

    MusicArt {
        id: art

        anchors.left: parent.left
        y: 12
        width: 196
        height: 196
        source: root.model.art
    }
    Item {
        anchors.left: art.right
        anchors.leftMargin: 24
        anchors.right: parent.right
        height: parent.height

        Chip {
            anchors.left: parent.left
            anchors.leftMargin: -8
            y: 17
            width: Math.min(implicitWidth, parent.width)
            small: true
            bare: true
            horizontalPadding: 8
            iconName: root.model.sourceIcon
            restInk: hovered ? Theme.color.text2 : Theme.color.text3
            iconSize: 13
            pixelSize: 11
            text: root.model.source
            Accessible.description: qsTr("Choose what is shown")
            onClicked: sources.popup(0, 28)

            PopupMenu {
                id: sources

                readonly property var all: root.model.sources

                items: all.concat([{separator: true}, {text: qsTr("Browser tab…"), iconName: "out"},
                                   {text: qsTr("Show it in the strip"), iconName: "notch",
                                    checked: root.model.isInStrip}])
                onChosen: index => {
                    if (index < all.length) {
                        root.model.chooseSource(all[index].value);
                    } else if (index === all.length + 1) {
                        root.tabsWanted();
                    } else {
                        root.model.isInStrip = !root.model.isInStrip;
                    }
                }
            }
        }
        Txt {
            y: 46
            width: parent.width
            horizontalAlignment: Text.AlignLeft // mirrored with the layout
            role: "title"
            text: root.model.title
            Accessible.role: Accessible.Heading
        }
        Txt {
            y: 74
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            text: root.model.artist
            color: Theme.color.text2
        }
        Item {
            y: 103
            width: parent.width
            height: 44
            LayoutMirroring.enabled: false
            LayoutMirroring.childrenInherit: true

            SeekBar {
                width: parent.width
                thickness: 5
                turns: false
                live: false
                enabled: root.model.canSeek
                to: Math.max(1, root.model.duration)
                step: 5
                value: root.model.duration > 0 ? root.model.position : 0
                fill: Theme.color.accent
                name: qsTr("Position")
                valueText: qsTr("%1 of %2").arg(root.model.positionText).arg(root.model.durationText)
                onMoved: value => root.model.seek(value)
            }
            Digits {
                anchors.left: parent.left
                y: 22
                role: "caption"
                color: Theme.color.text3
                text: root.model.positionText
                Accessible.ignored: true
            }
            Digits {
                anchors.right: parent.right
                y: 22
                role: "caption"
                color: Theme.color.text3
                text: root.model.durationText
                Accessible.ignored: true
            }
        }
        MusicKeys {
            y: 149
            width: parent.width
            focus: true
        }
    }
}
