// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A level that a key has just changed. It takes the place of the strip for a moment.
Item {
    id: root

    property string view // as every surface has it

    implicitWidth: 300 + 2 * Theme.radius.stripFillet
    implicitHeight: 44
    width: implicitWidth
    height: implicitHeight
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.StatusBar
    Accessible.name: App.overlay.spoken

    HangingShape {
        id: body

        x: Theme.radius.stripFillet
        width: 300
        height: 44
        radius: 17
        fillet: Theme.radius.stripFillet

        Icon {
            id: sign

            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            name: App.overlay.icon
            size: 20
            color: App.overlay.isMuted ? Theme.onStrip.text3 : Theme.onStrip.text1
        }
        Rectangle {
            anchors.left: sign.right
            anchors.leftMargin: 14
            anchors.right: figure.left
            anchors.rightMargin: 14
            anchors.verticalCenter: parent.verticalCenter
            height: 6
            radius: 3
            color: Qt.rgba(1, 1, 1, 0.18)

            Rectangle {
                anchors.left: parent.left
                width: Math.min(1, App.overlay.share) * parent.width
                height: parent.height
                radius: 3
                color: App.overlay.isMuted ? Theme.onStrip.text3 : Theme.onStrip.accent
            }
        }
        Txt {
            id: figure

            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            width: Math.max(40, implicitWidth)
            horizontalAlignment: Text.AlignRight
            role: "strong"
            elide: Text.ElideNone
            text: App.overlay.text
            color: Theme.onStrip.text1
            Accessible.ignored: true
        }
    }
}
