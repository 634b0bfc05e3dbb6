// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One emoji of the grid.
Item {
    id: root

    required property int index
    required property string emoji
    required property string name
    required property bool toned
    required property bool pinned
    property bool selected: false

    signal clicked
    signal tonesWanted

    Accessible.role: Accessible.Button
    Accessible.name: name
    Accessible.description: pinned ? qsTr("pinned") : ""
    Accessible.onPressAction: clicked()

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.rightMargin: 2
        anchors.bottomMargin: 2
        radius: 12
        color: root.selected ? Theme.color.soft2 : area.pressed ? Theme.color.bg3
             : area.containsMouse ? Theme.color.bg2 : Qt.alpha(Theme.color.bg2, 0)
        border.width: root.selected ? Theme.outline : 0
        border.color: Theme.color.accent
    }
    Text {
        anchors.centerIn: ground
        text: root.emoji
        font.family: "Noto Color Emoji"
        font.pixelSize: 30
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
    Icon {
        visible: root.pinned
        anchors.right: ground.right
        anchors.bottom: ground.bottom
        anchors.margins: 4
        name: "pin"
        size: 12
        color: Theme.color.text2
    }
    MouseArea {
        id: area

        anchors.fill: ground
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: mouse => {
            if (mouse.button === Qt.RightButton) {
                root.tonesWanted();
            } else {
                root.clicked();
            }
        }
        onPressAndHold: root.tonesWanted()
    }
}
