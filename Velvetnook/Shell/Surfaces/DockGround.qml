// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the tab and the panel of the dock are drawn on. Where it stands on the screen's edge its
// corners there are square: it is drawn on beyond the edge, and cut off.
Item {
    id: root

    property bool hasShadow: true
    property string squareEdge // empty: round all over
    property bool isSolid: !App.dock.isFrosted

    readonly property int over: Theme.radius.dock

    Shadow {
        visible: root.hasShadow
        step: "floating"
    }
    Item {
        anchors.fill: parent
        anchors.margins: -1
        anchors.leftMargin: root.squareEdge === "left" ? 0 : -1
        anchors.rightMargin: root.squareEdge === "right" ? 0 : -1
        anchors.bottomMargin: root.squareEdge === "bottom" ? 0 : -1
        clip: root.squareEdge !== ""

        Rectangle {
            x: root.squareEdge === "left" ? -root.over : 0
            width: parent.width + (root.squareEdge === "left" || root.squareEdge === "right" ? root.over : 0)
            height: parent.height + (root.squareEdge === "bottom" ? root.over : 0)
            radius: Theme.radius.dock + 1
            color: root.isSolid ? Theme.color.bg0 : Qt.alpha(Theme.color.bg0, 0.94)
            border.width: 1
            border.color: Theme.color.line
        }
    }
}
