// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The icon and the words of a button, centred; while busy a spinner stands for the icon.
Item {
    id: root

    property string text
    property string iconName
    property int iconSize: 18
    property bool busy: false
    property color ink: Theme.color.text1
    property color iconInk: Theme.color.text2
    property int pixelSize: 13
    property int weight: Font.Medium
    property real room: implicitWidth
    property bool signTrails: false

    readonly property bool hasSign: iconName !== "" || busy
    readonly property real signRoom: hasSign ? sign.width + (text === "" ? 0 : row.spacing) : 0

    implicitWidth: signRoom + label.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        layoutDirection: root.signTrails ? Qt.RightToLeft : Qt.LeftToRight
        spacing: 8

        Item {
            id: sign

            visible: root.hasSign
            anchors.verticalCenter: parent.verticalCenter
            width: root.busy ? 16 : root.iconSize
            height: width

            Icon {
                visible: !root.busy
                name: root.iconName
                size: root.iconSize
                color: root.iconInk
            }
            Loader {
                active: root.busy
                sourceComponent: Spinner {
                    color: root.iconInk
                    trackColor: Qt.alpha(root.iconInk, 0.25)
                }
            }
        }
        Txt {
            id: label

            visible: text !== ""
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, Math.ceil(root.room - root.signRoom))
            text: root.text
            role: "strong"
            pixelSize: root.pixelSize
            font.weight: root.weight
            color: root.ink
            Accessible.ignored: true
        }
    }
}
