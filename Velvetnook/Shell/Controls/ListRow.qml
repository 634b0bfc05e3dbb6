// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A row of a list. Arabic stands at the trailing side, so that both scripts start at an edge.
T.ItemDelegate {
    id: root

    property string title: ""
    property string note
    property string iconName
    property string trailingText
    property string arabic
    property real arabicSize: 17
    property bool selected: false
    property bool lit: hovered
    property bool ringed: visualFocus
    property color titleColor: Theme.color.text1
    default property alias trailing: slot.data

    implicitWidth: 240
    implicitHeight: note === "" ? 36 : 44
    leftPadding: 10
    rightPadding: 12
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    text: title
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: title
    Accessible.onPressAction: clicked()
    Accessible.description: note
    Accessible.selectable: true
    Accessible.selected: selected

    contentItem: Row {
        spacing: 10

        Icon {
            id: sign

            visible: root.iconName !== ""
            anchors.verticalCenter: parent.verticalCenter
            name: root.iconName
            color: root.selected ? Theme.color.accent : Theme.color.text3
        }
        Column {
            id: words

            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(0, parent.width - (sign.visible ? sign.width + 10 : 0)
                               - (tail.width > 0 ? tail.width + 10 : 0))
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignLeft // at the edge of the layout's start
                text: root.title
                role: "strong"
                lineHeight: root.note === "" ? 20 : 18
                font.weight: root.selected ? Font.DemiBold : Font.Medium
                color: !root.enabled ? Theme.color.text4
                     : root.selected ? Theme.color.text1 : root.titleColor
                Accessible.ignored: true
            }
            Txt {
                visible: text !== ""
                width: parent.width
                horizontalAlignment: Text.AlignLeft
                text: root.note
                role: "note"
                lineHeight: 16
                color: root.selected ? Theme.color.text2 : Theme.color.text3
                Accessible.ignored: true
            }
        }
        Row {
            id: tail

            anchors.verticalCenter: parent.verticalCenter
            spacing: 8
            Txt {
                visible: text !== ""
                anchors.verticalCenter: parent.verticalCenter
                text: root.trailingText
                role: "note"
                color: root.selected ? Theme.color.text2 : Theme.color.text3
            }
            ArabicText {
                visible: text !== ""
                anchors.verticalCenter: parent.verticalCenter
                text: root.arabic
                pixelSize: root.arabicSize
                byInk: true
                color: root.selected ? Theme.color.text1 : Theme.color.text2
            }
            Row {
                id: slot

                anchors.verticalCenter: parent.verticalCenter
                spacing: 4
            }
        }
    }
    background: Rectangle {
        radius: Theme.radius.row
        color: root.selected ? Theme.color.soft2
             : root.down ? Theme.color.bg3
             : root.lit && root.enabled ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: Theme.radius.row; isInner: true }
    }
}
