// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A change of a tool's file, line by line, and the consent to it.
FocusScope {
    id: root

    readonly property var connections: App.assistants.connections
    readonly property bool isReady: connections.lines.length > 0

    Txt {
        anchors.left: parent.left
        anchors.right: buttons.left
        anchors.rightMargin: 12
        height: 30
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignLeft
        role: "heading"
        text: root.connections.isConnecting ? qsTr("Connect %1").arg(root.connections.toolTitle)
                                            : qsTr("Disconnect %1").arg(root.connections.toolTitle)
    }
    Row {
        id: buttons

        anchors.right: parent.right
        spacing: 8
        SecondaryButton {
            small: true
            focus: true
            text: qsTr("Cancel")
            onClicked: root.connections.cancel()
        }
        PrimaryButton {
            small: true
            visible: root.isReady
            busy: root.connections.isBusy
            text: qsTr("Write this")
            onClicked: root.connections.write()
        }
    }
    Rectangle {
        y: 40
        width: parent.width
        height: parent.height - 40
        radius: Theme.radius.card
        color: Theme.color.bg1

        AssistantDiff {
            anchors.fill: parent
            anchors.margins: 8
            visible: root.isReady
            lines: root.connections.lines
        }
        AvailabilityView {
            anchors.fill: parent
            visible: !root.isReady
            availability: root.connections.problem === "" ? "loading" : "error"
            message: root.connections.problem === "" ? qsTr("Reading the file…")
                                                     : root.connections.problem
        }
    }
}
