// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One figure with its name. What exactly it counts stands in the tooltip.
T.Control {
    id: root

    property string label
    property string value
    property string detail
    property color ink: Theme.color.text1
    property bool dense: false

    implicitHeight: dense ? 26 : 35
    hoverEnabled: true
    focusPolicy: detail === "" ? Qt.NoFocus : Qt.TabFocus
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("%1: %2").arg(label).arg(value)
    Accessible.description: detail

    Txt {
        anchors.left: parent.left
        anchors.right: amount.left
        anchors.rightMargin: 10
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "label"
        color: Theme.color.text2
        text: root.label
        Accessible.ignored: true
    }
    Txt {
        id: amount

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        role: root.dense ? "label" : "strong"
        color: root.ink
        text: root.value
        Accessible.ignored: true
    }
    Hairline {
        visible: !root.dense
        anchors.bottom: parent.bottom
        width: parent.width
    }
    FocusRing { shown: root.visualFocus; corner: Theme.radius.key; isInner: true }
    Loader {
        active: root.detail !== "" && root.visible && (root.hovered || root.visualFocus)
        sourceComponent: Tip {
            parent: root
            text: root.detail
            visible: true
        }
    }
}
