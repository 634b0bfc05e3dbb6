// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick

// Why the data could not be opened. It knows no theme: what was chosen lies in that data, so
// the colours are those of the dark one.
Rectangle {
    id: root

    property string message
    property string place

    signal closeWanted

    implicitWidth: 460
    implicitHeight: words.implicitHeight + 44
    color: "#0B0D0C"
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: closeWanted()
    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    Column {
        id: words

        x: 24
        y: 22
        width: parent.width - 48
        spacing: 10

        Text {
            width: parent.width
            text: qsTr("Velvetnook cannot open its data")
            color: "#F1F3EE"
            font.family: "Inter"
            font.pixelSize: 17
            font.weight: Font.DemiBold
            wrapMode: Text.Wrap
        }
        Text {
            width: parent.width
            text: root.message
            textFormat: Text.PlainText
            color: "#F1F3EE"
            font.family: "Inter"
            font.pixelSize: 13
            wrapMode: Text.Wrap
        }
        Text {
            width: parent.width
            text: qsTr("Nothing was changed: %1").arg(root.place)
            textFormat: Text.PlainText
            color: "#8C938B"
            font.family: "Inter"
            font.pixelSize: 12
            wrapMode: Text.WrapAnywhere
        }
        Rectangle {
            anchors.right: parent.right
            width: label.implicitWidth + 28
            height: 36
            radius: 11
            focus: true
            activeFocusOnTab: true
            Keys.onReturnPressed: root.closeWanted()
            Keys.onEnterPressed: root.closeWanted()
            Keys.onSpacePressed: root.closeWanted()
            color: area.pressed ? "#8DAA88" : area.containsMouse ? "#BBD5B7" : "#A6C8A0"
            Accessible.role: Accessible.Button
            Accessible.name: label.text
            Accessible.onPressAction: root.closeWanted()

            Rectangle { // where the keyboard is
                anchors { fill: parent; margins: -4 }
                visible: parent.activeFocus
                color: "transparent"
                border { width: 2; color: "#A6C8A0" }
                radius: 15
            }
            Text {
                id: label

                anchors.centerIn: parent
                text: qsTr("Close")
                color: "#0D160E"
                font.family: "Inter"
                font.pixelSize: 13
                font.weight: Font.DemiBold
            }
            MouseArea {
                id: area

                anchors.fill: parent
                hoverEnabled: true
                onClicked: root.closeWanted()
            }
        }
    }
}
