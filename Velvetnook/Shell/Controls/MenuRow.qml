// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// One row of a menu, or the line between two groups.
T.MenuItem {
    id: root

    property string iconName
    property string keyHint
    property bool current: false
    property bool isSeparator: false

    signal pointed

    readonly property color ink: enabled ? Theme.color.text1 : Theme.color.text4

    implicitWidth: 20 + (sign.visible ? 27 : 0) + label.implicitWidth
                   + (cap.visible ? cap.width + 16 : 0) + (mark.visible ? 26 : 0)
    implicitHeight: isSeparator ? 13 : 34
    hoverEnabled: true
    focusPolicy: Qt.NoFocus
    onHoveredChanged: {
        if (hovered) {
            pointed();
        }
    }
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Icon {
            id: sign

            visible: root.iconName !== ""
            x: root.LayoutMirroring.enabled ? parent.width - 27 : 10
            anchors.verticalCenter: parent.verticalCenter
            name: root.iconName
            size: 17
            color: root.enabled ? Theme.color.text2 : Theme.color.text4
        }
        Txt {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: sign.visible ? 37 : 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            role: "strong"
            color: root.ink
            Accessible.ignored: true
        }
        KeyCap {
            id: cap

            visible: root.keyHint !== ""
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.keyHint
        }
        Icon {
            id: mark

            visible: root.checked
            anchors.right: parent.right
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            name: "check"
            size: 14
            color: Theme.color.accent
        }
    }
    background: Item {
        Rectangle {
            anchors.fill: parent
            visible: root.current && !root.isSeparator && root.enabled
            radius: Theme.radius.row
            color: root.down ? Theme.color.line2 : Theme.color.bg3
        }
        Hairline {
            visible: root.isSeparator
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            color: Theme.color.line2
        }
    }
}
