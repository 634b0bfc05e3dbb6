// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// Numbered rows of phrases; the chosen one is always in sight.
ListView {
    id: root

    model: App.names.list
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    currentIndex: App.names.row
    onCurrentIndexChanged: positionViewAtIndex(Math.max(0, currentIndex), ListView.Contain)
    onCountChanged: positionViewAtIndex(Math.max(0, currentIndex), ListView.Contain)
    Accessible.role: Accessible.List
    Accessible.name: App.names.searchHint

    delegate: T.AbstractButton {
        id: row

        required property int index
        required property string number
        required property string arabic
        required property string title

        readonly property bool isChosen: index === App.names.row

        width: root.width
        height: 36
        hoverEnabled: true
        focusPolicy: Qt.NoFocus
        Accessible.role: Accessible.ListItem
        Accessible.name: LayoutMirroring.enabled ? arabic : title
        Accessible.selectable: true
        Accessible.selected: isChosen
        onClicked: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            App.names.row = index;
        }

        background: Rectangle {
            radius: Theme.radius.row
            color: row.isChosen ? Theme.color.soft2
                 : row.down ? Theme.color.bg3
                 : row.hovered ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
            FocusRing {
                shown: row.isChosen && root.activeFocus && ringed.isByKeyboard
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
                text: row.number
                color: row.isChosen ? Theme.color.accent : Theme.color.text3
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
                arabic: row.arabic
                title: row.title
                arabicFirst: false
                arabicRoom: 90
                strong: row.isChosen
                ink: row.isChosen ? Theme.color.text1 : Theme.color.text2
                arabicInk: ink
            }
        }
    }
    QtObject {
        id: ringed

        readonly property bool isByKeyboard: root.focusReason === Qt.TabFocusReason
    }
    property int focusReason: Qt.OtherFocusReason
    Txt {
        visible: App.names.isListEmpty
        x: 10
        y: 8
        text: App.names.emptyText
        color: Theme.color.text2
    }
}
