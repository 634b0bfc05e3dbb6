// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The closed strip at the top edge of the screen, always black.
Item {
    id: root

    property string view: "compact" // hoverOpening, pressed, focused, hidden or suppressed too
    property bool hasFrame: true    // the window draws its own, which grows into the panel

    readonly property bool isShown: view !== "hidden" && view !== "suppressed"
    readonly property int grownWidth: view === "hoverOpening" ? 8 : view === "pressed" ? -8 : 0
    readonly property int grownHeight: view === "hoverOpening" ? 3 : view === "pressed" ? -1 : 0
    readonly property real radius: view === "hoverOpening" ? 15 : 13
    // Even, so that it stands in the middle of the screen to the pixel.
    readonly property int wantedWidth: 2 * Math.ceil(line.implicitWidth / 2) + grownWidth
    readonly property int wantedHeight: 32 + grownHeight

    implicitWidth: isShown ? wantedWidth : 190
    implicitHeight: isShown ? wantedHeight : 4
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.StatusBar
    Accessible.name: qsTr("Velvetnook")
    Accessible.description: App.strip.spoken

    StripGlow {
        width: parent.width
        height: parent.height
        radius: root.radius
        running: App.strip.isEmphasised && root.isShown
    }
    HangingShape {
        visible: root.hasFrame && root.isShown
        width: parent.width
        height: parent.height
        radius: root.radius
        fillet: Theme.radius.stripFillet
    }
    StripLine {
        id: line

        visible: root.isShown
        width: parent.width
        height: parent.height
        opacity: root.view === "pressed" ? 0.72 : 1
    }
    // Round below only, as the strip is.
    Item {
        visible: root.view === "focused"
        anchors.fill: parent
        clip: true

        Rectangle {
            width: parent.width
            height: parent.height * 2
            y: -parent.height
            radius: root.radius
            color: "transparent"
            border.width: 2
            border.color: Theme.onStrip.accent
        }
        Rectangle {
            width: parent.width
            height: 2
            color: Theme.onStrip.accent
        }
    }
}
