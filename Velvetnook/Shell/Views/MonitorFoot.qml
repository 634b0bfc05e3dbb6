// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The footer: how long the machine is up, what may not be seen, its battery; on the page of
// the history what is kept.
Item {
    id: root

    signal exportWanted

    implicitWidth: 600
    implicitHeight: 30
    width: 600
    height: 30

    Row {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        spacing: 14

        Txt {
            visible: text !== ""
            role: "note"
            color: Theme.color.text3
            text: App.monitor.page === "chart" ? App.monitor.chart.footer : App.monitor.uptime
        }
        Txt {
            visible: text !== "" && App.monitor.page !== "chart"
            role: "note"
            color: Theme.color.text3
            text: App.monitor.restricted
        }
        Row {
            visible: App.monitor.battery !== "" && App.monitor.page !== "chart"
            spacing: 6

            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "battery"
                size: 15
                color: Theme.color.text3
            }
            Txt {
                role: "note"
                color: Theme.color.text3
                text: App.monitor.battery
                Accessible.name: qsTr("Battery %1").arg(text)
            }
        }
    }
    FooterLink {
        visible: App.monitor.availability === "ready"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Export image…")
        onClicked: root.exportWanted()
    }
}
