// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// What stands in the place of a content that is not there, and the way on.
Item {
    id: root

    property string availability // "unconfigured", "loading", "empty", "offline" …
    property string iconName
    property string message
    property string note
    property string primaryText
    property string secondaryText

    signal primary
    signal secondary

    readonly property string ownIcon: ({offline: "offline", permissionDenied: "lock",
                                        rateLimited: "hourglass", error: "alert"})[availability]
                                      ?? "info"
    // One step to take is an accent; to try again is not.
    readonly property bool isStep: availability === "unconfigured"
                                   || availability === "permissionDenied"

    implicitWidth: 320
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: message

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width, 270)
        spacing: 4

        Item {
            anchors.horizontalCenter: parent.horizontalCenter
            width: 28
            height: 34
            Icon {
                visible: root.availability !== "loading"
                size: 28
                name: root.iconName === "" ? root.ownIcon : root.iconName
                color: root.availability === "error" ? Theme.color.danger : Theme.color.text3
            }
            Loader {
                active: root.availability === "loading"
                anchors.horizontalCenter: parent.horizontalCenter
                y: 6
                sourceComponent: Spinner {}
            }
        }
        Txt {
            width: parent.width
            text: root.message
            role: "strong"
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Txt {
            visible: text !== ""
            width: parent.width
            text: root.note
            role: "note"
            color: Theme.color.text3
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Item {
            visible: buttons.visible
            width: 1
            height: 6
        }
        Row {
            id: buttons

            visible: root.primaryText !== "" || root.secondaryText !== ""
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8
            PrimaryButton {
                visible: root.isStep && text !== ""
                small: true
                text: root.primaryText
                onClicked: root.primary()
            }
            SecondaryButton {
                visible: !root.isStep && text !== ""
                small: true
                enabled: root.availability !== "rateLimited"
                iconName: root.availability === "empty" ? "" : "refresh"
                text: root.primaryText
                onClicked: root.primary()
            }
            SecondaryButton {
                visible: root.isStep && text !== ""
                small: true
                text: root.secondaryText
                onClicked: root.secondary()
            }
            GhostButton {
                visible: !root.isStep && text !== ""
                small: true
                text: root.secondaryText
                onClicked: root.secondary()
            }
        }
    }
}
