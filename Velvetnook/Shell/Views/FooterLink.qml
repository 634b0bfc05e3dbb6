// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// Words in a footer that lead somewhere.
T.AbstractButton {
    id: root

    property string iconName

    readonly property color ink: hovered ? Theme.color.accentHover : Theme.color.accent

    implicitWidth: row.implicitWidth
    implicitHeight: 30
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Row {
            id: row

            anchors.verticalCenter: parent.verticalCenter
            spacing: 6
            Icon {
                visible: root.iconName !== ""
                anchors.verticalCenter: parent.verticalCenter
                name: root.iconName
                size: 15
                color: root.ink
            }
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                role: "note"
                font.weight: Font.Medium
                color: root.ink
                text: root.text
                Accessible.ignored: true
            }
        }
    }
    FocusRing {
        shown: root.visualFocus
        corner: Theme.radius.key
    }
}
