// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// Names what is under the pointer, with its key, after a moment.
T.ToolTip {
    id: root

    property string keyHint

    readonly property bool isRightToLeft: parent ? parent.LayoutMirroring.enabled : false

    delay: 600
    margins: 4
    x: parent ? Math.round((parent.width - implicitWidth) / 2) : 0
    y: parent ? parent.height + 8 : 0
    implicitWidth: contentItem.implicitWidth + 20
    implicitHeight: 28
    horizontalPadding: 10
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: Item {
        implicitWidth: row.implicitWidth
        LayoutMirroring.enabled: root.isRightToLeft
        LayoutMirroring.childrenInherit: true

        Row {
            id: row

            anchors.verticalCenter: parent.verticalCenter
            spacing: 8
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                text: root.text
                role: "label"
            }
            KeyCap {
                visible: text !== ""
                anchors.verticalCenter: parent.verticalCenter
                text: root.keyHint
            }
        }
    }
    background: Rectangle {
        radius: 9
        color: Theme.color.bg3
        Shadow { step: "raised" }
    }
}
