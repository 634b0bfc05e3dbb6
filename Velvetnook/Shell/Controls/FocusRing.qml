// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// Shows where the keyboard is: 2 px of accent around its parent, after a gap of 2.
Rectangle {
    id: root

    property bool shown: false
    property real corner: Theme.radius.button
    property bool isInner: false // on the parent's own edge, where there is no room outside

    readonly property int reach: isInner ? 0 : 4

    anchors.fill: parent
    anchors.margins: -reach
    visible: shown
    color: "transparent"
    border.width: 2
    border.color: Theme.color.accent
    radius: corner + reach
}
