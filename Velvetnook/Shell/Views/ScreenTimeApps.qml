// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The applications of the period, the longest first. Each can be left out from now on.
ListView {
    id: root

    readonly property var tints: ["#D9B38C", "#E3A48B", "#9DBFD9", "#B8B2E0", "#A6C8A0"]

    model: App.screenTime.applications
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Applications")

    delegate: T.ItemDelegate {
        id: row

        required property var modelData

        width: root.width
        height: 44
        hoverEnabled: true
        focusPolicy: Qt.TabFocus
        Keys.onMenuPressed: menu.popup(40, 36)
        Keys.onReturnPressed: menu.popup(40, 36)
        Accessible.name: modelData.title + ", " + modelData.time

        background: Rectangle {
            radius: Theme.radius.row
            color: row.hovered ? Theme.color.bg1 : Qt.alpha(Theme.color.bg1, 0)
            FocusRing {
                shown: row.visualFocus
                corner: Theme.radius.row
                isInner: true
            }
        }
        contentItem: Item {
            Rectangle {
                id: tile

                anchors.left: parent.left
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                width: 24
                height: 24
                radius: 7
                color: root.tints[row.modelData.tint]

                Txt {
                    anchors.centerIn: parent
                    role: "label"
                    font.weight: Font.Bold
                    color: "#0B0D0C"
                    text: row.modelData.title.charAt(0).toUpperCase()
                    Accessible.ignored: true
                }
            }
            Txt {
                id: name

                anchors.left: tile.right
                anchors.leftMargin: 12
                anchors.right: time.left
                anchors.rightMargin: 10
                y: 6
                horizontalAlignment: Text.AlignLeft
                role: "strong"
                text: row.modelData.title
                Accessible.ignored: true
            }
            Txt {
                id: time

                anchors.right: more.left
                anchors.rightMargin: 4
                anchors.baseline: name.baseline
                role: "label"
                elide: Text.ElideNone
                text: row.modelData.time
                color: Theme.color.text2
                Accessible.ignored: true
            }
            ProgressBar4 {
                anchors.left: name.left
                anchors.right: time.right
                y: 32
                value: row.modelData.share
                Accessible.ignored: true
            }
            IconButton {
                id: more

                anchors.right: parent.right
                anchors.rightMargin: 4
                anchors.verticalCenter: parent.verticalCenter
                size: 30
                opacity: row.hovered || visualFocus ? 1 : 0
                iconName: "more"
                name: qsTr("More about %1").arg(row.modelData.title)
                onClicked: menu.popup(x - 120, 36)
            }
        }
        PopupMenu {
            id: menu

            items: [{text: qsTr("Count no more"), iconName: "eye-off"}]
            onChosen: App.screenTime.exclude(row.modelData.id)
        }
    }
}
