// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Which assistants tell of themselves by their hooks, and the way to a change of that.
FocusScope {
    id: root

    readonly property var connections: App.assistants.connections

    signal back

    ScrollBody {
        anchors.fill: parent

        Column {
            width: root.width
            spacing: 8

            Item {
                width: parent.width
                height: 32
                IconButton {
                    id: goBack

                    anchors.left: parent.left
                    size: 30
                    iconName: "left"
                    name: qsTr("Back")
                    focus: true
                    onClicked: root.back()
                }
                Txt {
                    anchors.left: goBack.right
                    anchors.leftMargin: 8
                    anchors.right: parent.right
                    height: 30
                    verticalAlignment: Text.AlignVCenter
                    horizontalAlignment: Text.AlignLeft
                    role: "heading"
                    text: qsTr("Connections")
                }
            }
            Rectangle {
                width: parent.width
                height: rows.height
                radius: Theme.radius.card
                color: Theme.color.bg1

                Column {
                    id: rows

                    width: parent.width
                    Repeater {
                        model: root.connections.tools
                        delegate: AssistantConnection {}
                    }
                    SettingsRow {
                        title: qsTr("Say who waits for you")
                        note: qsTr("In the strip, for a quarter of an hour, until you look here.")
                        Toggle {
                            name: qsTr("Say who waits for you")
                            checked: App.assistants.saysWaiting
                            onToggled: checked => App.assistants.saysWaiting = checked
                        }
                    }
                }
            }
        }
    }
}
