// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What should be looked at. Raised once, dismissed once.
Rectangle {
    id: root

    implicitWidth: 600
    implicitHeight: 30
    radius: 10
    color: Theme.color.warnSoft
    Accessible.role: Accessible.AlertMessage
    Accessible.name: App.monitor.alertApp + ". " + App.monitor.alertText

    Icon {
        id: sign

        anchors.left: parent.left
        anchors.leftMargin: 11
        anchors.verticalCenter: parent.verticalCenter
        name: "alert"
        size: 16
        color: Theme.color.warn
    }
    Txt {
        id: app

        anchors.left: sign.right
        anchors.leftMargin: 9
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, 160)
        role: "label"
        font.weight: Font.DemiBold
        text: App.monitor.alertApp
        Accessible.ignored: true
    }
    Txt {
        anchors.left: app.right
        anchors.leftMargin: 6
        anchors.right: buttons.left
        anchors.rightMargin: 6
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        role: "label"
        font.weight: Font.Normal
        text: App.monitor.alertText
        Accessible.ignored: true
    }
    Row {
        id: buttons

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        GhostButton {
            small: true
            text: qsTr("Review")
            onClicked: App.monitor.review()
        }
        GhostButton {
            small: true
            text: qsTr("Dismiss")
            onClicked: App.monitor.dismissAlert()
        }
    }
}
