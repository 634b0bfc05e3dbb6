// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What one key summons, the key, and the way to another.
SettingsRow {
    id: root

    required property var modelData
    required property QtObject page

    readonly property bool isRecording: page.recording === modelData.target

    title: modelData.title
    note: !isRecording ? modelData.note
        : page.refusal !== "" ? page.refusal : qsTr("Press the keys together. Esc leaves it as it is.")
    noteColor: isRecording ? (page.refusal !== "" ? Theme.color.danger : Theme.color.text2)
             : modelData.isFull ? Theme.color.text3 : Theme.color.warn

    Row {
        visible: !root.isRecording
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4
        Repeater {
            model: root.modelData.keys
            delegate: KeyCap {
                required property string modelData

                text: modelData
            }
        }
    }
    SecondaryButton {
        visible: !root.isRecording
        small: true
        text: root.modelData.isSet ? qsTr("Change…") : qsTr("Set…")
        Accessible.name: qsTr("Change the key of %1").arg(root.title)
        onClicked: root.page.record(root.modelData.target)
    }
    IconButton {
        visible: !root.isRecording && root.modelData.isSet
        size: 30
        iconName: "x"
        name: qsTr("Take the key of %1 away").arg(root.title)
        onClicked: root.page.remove(root.modelData.target)
    }
    Loader {
        active: root.isRecording
        visible: active
        sourceComponent: ShortcutRecorder {
            onPressed: (key, modifiers, scanCode) => root.page.press(key, modifiers, scanCode)
            onAbandoned: root.page.cancel()
        }
    }
}
