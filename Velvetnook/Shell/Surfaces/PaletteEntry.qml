// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Layouts
import Velvetnook.Application
import Velvetnook.Shell

// One line of what the palette offers, with the head of the group that begins with it.
Item {
    id: root

    required property int index
    required property string head
    required property string title
    required property string spoken
    required property string note
    required property string iconName
    required property string emoji
    required property string arabic
    required property string trailing
    required property string keyHint
    required property string enterHint
    required property string enterNote
    required property bool isArabic
    property bool isCurrent: false
    // A phrase too long for the line stands whole in the counter, and here in Latin letters.
    readonly property real widestArabic: face.width * (isArabic ? 0.8 : 0.66)
    readonly property bool hasArabic: arabic !== "" && Theme.ink.advance(arabic, 18) < widestArabic
    readonly property bool isArabicTitle: isArabic && hasArabic

    signal clicked

    // What matches is in the accent.
    function coloured(markup) {
        return markup.replace(/<m>/g, "<font color=\"" + Theme.color.accent + "\">")
                     .replace(/<\/m>/g, "</font>");
    }

    height: (head === "" ? 0 : 32) + 44
    Accessible.role: Accessible.ListItem
    Accessible.name: note === "" ? spoken : spoken + ", " + note
    Accessible.selected: isCurrent
    Accessible.selectable: true
    Accessible.onPressAction: root.clicked()

    Txt {
        id: headText

        visible: root.head !== ""
        x: 20
        y: 12
        width: parent.width - 40
        role: "label"
        color: Theme.color.text3
        text: root.head
        horizontalAlignment: Text.AlignLeft
    }
    Rectangle {
        id: face

        x: 8
        anchors.bottom: parent.bottom
        width: parent.width - 16
        height: 44
        radius: 12
        color: {
            if (root.isCurrent) {
                return Theme.color.soft2;
            }
            if (tap.pressed) {
                return Theme.color.bg3;
            }
            return hover.hovered ? Theme.color.bg2 : "transparent";
        }

        HoverHandler { id: hover }
        TapHandler {
            id: tap

            onTapped: root.clicked()
        }

        RowLayout {
            anchors.fill: parent
            anchors.leftMargin: 12
            anchors.rightMargin: 12
            spacing: 12

            Item {
                Layout.preferredWidth: 20
                Layout.preferredHeight: 24

                Icon {
                    anchors.centerIn: parent
                    visible: root.emoji === ""
                    name: root.iconName
                    size: 18
                    color: root.isCurrent ? Theme.color.accent : Theme.color.text3
                }
                Text {
                    anchors.centerIn: parent
                    visible: root.emoji !== ""
                    text: root.emoji
                    textFormat: Text.PlainText
                    font.family: "Noto Color Emoji"
                    font.pixelSize: 19
                    Accessible.ignored: true
                }
            }
            Loader {
                active: root.isArabicTitle
                visible: active
                sourceComponent: ArabicText {
                    text: root.arabic
                    pixelSize: 18
                    byInk: true
                }
            }
            Txt {
                visible: !root.isArabicTitle
                Layout.fillWidth: true
                Layout.maximumWidth: Math.min(Math.ceil(implicitWidth),
                                              face.width * (root.note === "" ? 1 : 0.6))
                Layout.minimumWidth: Math.min(Math.ceil(implicitWidth), 120)
                role: "strong"
                pixelSize: 14
                textFormat: Text.StyledText
                text: root.coloured(root.title)
                Accessible.ignored: true
            }
            Txt {
                Layout.fillWidth: true
                Layout.preferredWidth: 0
                role: "body"
                color: root.isCurrent ? Theme.color.text2 : Theme.color.text3
                text: root.note
                horizontalAlignment: Text.AlignLeft
                Accessible.ignored: true
            }
            Loader {
                active: root.hasArabic && !root.isArabic
                visible: active
                sourceComponent: ArabicText {
                    text: root.arabic
                    pixelSize: 18
                    byInk: true
                }
            }
            Txt {
                visible: root.trailing !== ""
                role: "note"
                color: Theme.color.text3
                text: root.trailing
                Accessible.ignored: true
            }
            KeyCap {
                visible: text !== ""
                text: root.isCurrent && root.enterHint !== "" ? root.enterHint : root.keyHint
                Layout.leftMargin: root.arabic === "" ? 0 : 8
                ink: root.isCurrent ? Theme.color.text1 : Theme.color.text2
                border.color: root.isCurrent ? Qt.alpha(Theme.color.accent, 0.45)
                                             : Theme.color.line2
            }
            Txt {
                visible: root.isCurrent && root.enterNote !== ""
                role: "note"
                color: Theme.color.text2
                text: root.enterNote
                Accessible.ignored: true
            }
        }
    }
}
