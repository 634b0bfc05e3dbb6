// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One tool of the list, with a handle to move it by.
Item {
    id: root

    required property int index
    required property string toolId
    required property string title
    required property string summary
    required property string icon
    required property bool enabledTool
    required property bool favourite
    required property bool canTurnOff
    property int count

    property alias handle: handle
    // Where it would land, and how far it is carried.
    readonly property int target: Math.max(0, Math.min(count - 1, index + Math.round(carried / height)))
    property real carried: 0

    signal stepWanted(int by)
    signal dropped(int to)
    signal favouriteWanted(bool on)
    signal enableWanted(bool on)

    implicitHeight: 50
    z: drag.active ? 1 : 0

    Hairline {
        visible: root.index > 0
        width: parent.width
    }
    Rectangle {
        // The line between two rows where it would land.
        visible: drag.active && root.target !== root.index
        y: (root.target - root.index + (root.target > root.index ? 1 : 0)) * root.height - 1
        z: 2
        width: parent.width
        height: 2
        color: Theme.color.accent
    }
    Rectangle {
        y: drag.active ? root.carried : 0
        width: parent.width
        height: parent.height
        radius: drag.active ? Theme.radius.row : 0
        color: drag.active ? Theme.color.bg2 : "transparent"

        IconButton {
            id: handle

            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            size: 30
            iconName: "drag"
            ink: Theme.color.text3
            name: qsTr("Move %1").arg(root.title)
            keyHint: qsTr("Alt ↑ ↓")
            Keys.onPressed: event => {
                const by = event.key === Qt.Key_Up ? -1 : event.key === Qt.Key_Down ? 1 : 0;
                if (by !== 0 && event.modifiers & Qt.AltModifier) {
                    event.accepted = true;
                    root.stepWanted(by);
                }
            }
            DragHandler {
                id: drag

                target: null
                xAxis.enabled: false
                onTranslationChanged: root.carried = translation.y
                onActiveChanged: {
                    if (!active) {
                        const to = root.target;
                        root.carried = 0;
                        root.dropped(to);
                    }
                }
            }
        }
        Icon {
            id: sign

            anchors.left: handle.right
            anchors.leftMargin: 6
            anchors.verticalCenter: parent.verticalCenter
            name: root.icon
            color: root.enabledTool ? Theme.color.text2 : Theme.color.text4
        }
        Column {
            anchors.left: sign.right
            anchors.leftMargin: 14
            anchors.right: star.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignLeft // mirrored with the layout
                role: "strong"
                lineHeight: 18
                text: root.title
                color: root.enabledTool ? Theme.color.text1 : Theme.color.text3
            }
            Txt {
                width: parent.width
                horizontalAlignment: Text.AlignLeft // mirrored with the layout
                role: "note"
                lineHeight: 16
                text: root.summary
                color: Theme.color.text3
            }
        }
        IconButton {
            id: star

            anchors.right: toggle.left
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            size: 30
            iconName: "star"
            iconFilled: root.favourite
            ink: root.favourite ? Theme.color.accent : Theme.color.text3
            name: root.favourite ? qsTr("Take %1 out of the header").arg(root.title)
                                 : qsTr("Put %1 into the header").arg(root.title)
            onClicked: root.favouriteWanted(!root.favourite)
        }
        Toggle {
            id: toggle

            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: parent.verticalCenter
            enabled: root.canTurnOff
            name: root.title
            checked: root.enabledTool
            onToggled: checked => root.enableWanted(checked)
        }
    }
}
