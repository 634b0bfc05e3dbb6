// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// What a raised or floating surface throws on what lies under it. A child of the surface.
BorderImage {
    id: root

    property string step: "raised" // or "floating"

    readonly property int reach: Theme.shadowReach(step)

    z: -1
    anchors.fill: parent
    anchors.margins: -reach
    // One that is not shown must not be computed: the strip has none, and starts with it.
    source: visible ? "image://shadow/" + step + "/" + (Theme.isDark ? "dark" : "light") : ""
    border.left: reach * 2
    border.right: reach * 2
    border.top: reach * 2
    border.bottom: reach * 2
    Accessible.ignored: true
}
