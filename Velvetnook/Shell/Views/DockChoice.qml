// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One of the things that can be put into the dock.
T.ItemDelegate {
    id: root

    required property string title
    required property string iconSource
    required property string letter
    required property int tint
    property string iconName

    implicitHeight: 36
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    text: title
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: title
    Accessible.onPressAction: clicked()

    contentItem: Item {
        DockFace {
            id: face

            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            width: 24
            height: 24
            iconName: root.iconName
            iconSource: root.iconSource
            letter: root.letter
            tint: root.tint
        }
        Txt {
            anchors.left: face.right
            anchors.leftMargin: 10
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignLeft
            role: "strong"
            text: root.title
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Theme.radius.row
        color: root.down ? Theme.color.bg3
             : root.hovered || root.visualFocus ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
        FocusRing { shown: root.visualFocus; corner: Theme.radius.row; isInner: true }
    }
}
