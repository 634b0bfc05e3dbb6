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
    // What is narrower than its corners has only their outer parts.
    border.left: Math.min(reach * 2, Math.floor(width / 2))
    border.right: Math.min(reach * 2, Math.floor(width / 2))
    border.top: Math.min(reach * 2, Math.floor(height / 2))
    border.bottom: Math.min(reach * 2, Math.floor(height / 2))
    Accessible.ignored: true
}
