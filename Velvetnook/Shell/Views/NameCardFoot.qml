// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// Where the text is taken from, between the one before and the one after.
Item {
    id: root

    height: 30

    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 8
        size: 30
        iconSize: 16
        iconName: "left"
        name: qsTr("The one before")
        keyHint: "↑"
        onClicked: App.names.move(-1)
    }
    T.AbstractButton {
        id: source

        anchors.centerIn: parent
        enabled: App.names.sourceUrl !== ""
        hoverEnabled: true
        focusPolicy: Qt.TabFocus
        implicitWidth: face.implicitWidth
        implicitHeight: 30
        Accessible.role: Accessible.Link
        Accessible.name: qsTr("Source: %1").arg(App.names.source)
        Accessible.onPressAction: clicked()
        onClicked: Qt.openUrlExternally(App.names.sourceUrl)
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()

        contentItem: Item {
            Row {
                id: face

                anchors.centerIn: parent
                spacing: 6

                Icon {
                    anchors.verticalCenter: parent.verticalCenter
                    name: "book"
                    size: 14
                    color: source.hovered ? Theme.color.accent : Theme.color.text3
                }
                Txt {
                    role: "note"
                    text: App.names.source
                    color: source.hovered ? Theme.color.accent : Theme.color.text3
                    Accessible.ignored: true
                }
            }
        }
        FocusRing {
            shown: source.visualFocus
            corner: Theme.radius.key
        }
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 8
        size: 30
        iconSize: 16
        iconName: "right"
        name: qsTr("The next one")
        keyHint: "↓"
        onClicked: App.names.move(1)
    }
}
