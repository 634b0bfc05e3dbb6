// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One phrase in the list, with its number in the catalogue.
T.ItemDelegate {
    id: root

    required property int index
    required property string number
    required property string arabic
    required property string title

    property bool ringed: false

    readonly property bool isChosen: index === App.names.row
    readonly property color ink: isChosen ? Theme.color.text1 : Theme.color.text2

    height: 36
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    Accessible.name: LayoutMirroring.enabled ? arabic : title
    Accessible.selectable: true
    Accessible.selected: isChosen
    Accessible.onPressAction: clicked()
    onClicked: App.names.row = index

    background: Rectangle {
        radius: Theme.radius.row
        color: root.isChosen ? Theme.color.soft2
             : root.down ? Theme.color.bg3
             : root.hovered ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
        FocusRing {
            shown: root.ringed
            corner: Theme.radius.row
            isInner: true
        }
    }
    contentItem: Item {
        Txt {
            id: place

            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            width: 16
            role: "caption"
            text: root.number
            color: root.isChosen ? Theme.color.accent : Theme.color.text3
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideNone
            Accessible.ignored: true
        }
        PhraseWords {
            anchors.left: place.right
            anchors.right: parent.right
            anchors.leftMargin: 10
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            arabic: root.arabic
            title: root.title
            arabicFirst: false
            arabicRoom: 90
            strong: root.isChosen
            ink: root.ink
            arabicInk: root.ink
        }
    }
}
