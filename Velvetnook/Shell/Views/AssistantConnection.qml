// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One tool that has hooks: whether it is connected, and the change that would make it other.
SettingsRow {
    id: root

    required property var modelData

    readonly property bool isOurs: modelData.state === "connected"
    readonly property bool isPart: modelData.state === "partial"

    title: modelData.title
    noteColor: modelData.state === "error" ? Theme.color.danger : Theme.color.text3
    note: modelData.note !== "" ? modelData.note
        : isOurs ? qsTr("Connected in %1").arg(modelData.file)
        : isPart ? qsTr("Connected in part in %1").arg(modelData.file)
        : modelData.state === "missing" ? qsTr("Not on this computer")
        : qsTr("Not connected. You see the change of %1 first.").arg(modelData.file)

    SecondaryButton {
        visible: root.isOurs || root.isPart
        small: true
        text: qsTr("Disconnect…")
        Accessible.name: qsTr("Disconnect %1").arg(root.title)
        onClicked: App.assistants.connections.plan(root.modelData.tool, false)
    }
    SecondaryButton {
        visible: root.modelData.state === "off" || root.isPart
        small: true
        text: root.isPart ? qsTr("Complete…") : qsTr("Connect…")
        Accessible.name: qsTr("Connect %1").arg(root.title)
        onClicked: App.assistants.connections.plan(root.modelData.tool, true)
    }
}
