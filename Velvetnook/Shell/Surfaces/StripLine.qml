// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The one thing that the strip shows: something at the start or in the middle, something at the
// end, and the hem below.
Item {
    id: root

    readonly property bool hasHem: App.strip.hem >= 0
    readonly property int padding: 12
    readonly property int gap: 9
    readonly property real arabicSize: hasHem ? 14 : 16
    // What is left for the leading text once the end has its room.
    readonly property real room: 360 - 2 * padding - (trail.width > 0 ? trail.width + 2 * gap : 0)
    readonly property bool showsArabic: App.strip.arabic !== ""
        && Theme.ink.advance(App.strip.arabic, arabicSize) <= room
    readonly property bool isMessage: App.strip.kind === "message"
    readonly property color tone: App.strip.isEmphasised
        ? Qt.tint(Theme.onStrip.text1, Qt.alpha(Theme.onStrip.accentHover, 0.4))
        : Theme.onStrip[App.strip.textTone] ?? Theme.onStrip.text1
    readonly property real middle: hasHem ? height / 2 - 1.5 : height / 2

    implicitWidth: Math.max(App.strip.baseWidth,
                            Math.min(360, 2 * padding + lead.implicitWidth
                                     + (trail.width > 0 ? trail.width + 2 * gap : 0)))

    Row {
        id: lead

        readonly property real wanted: Math.min(implicitWidth, root.width - 2 * root.padding
                                                - (trail.width > 0 ? trail.width + 2 * root.gap : 0))

        anchors.left: App.strip.isCentred ? undefined : parent.left
        anchors.leftMargin: root.padding
        anchors.horizontalCenter: App.strip.isCentred ? parent.horizontalCenter : undefined
        height: parent.height
        spacing: root.gap

        Rectangle {
            visible: App.strip.kind === "assistant"
            y: root.middle - 3
            width: 6
            height: 6
            radius: 3
            color: Theme.onStrip.warn
        }
        StripRing {
            y: root.middle - height / 2
            visible: App.strip.ring >= 0 && App.strip.ringLeads
        }
        StripBars {
            y: root.middle - height / 2
            visible: App.strip.kind === "music"
        }
        Icon {
            y: root.middle - height / 2
            visible: name !== ""
            name: App.strip.icon
            size: 16
            color: Theme.onStrip[App.strip.iconTone] ?? Theme.onStrip.text2
        }
        ArabicText {
            y: Math.round(root.middle - height / 2)
            visible: root.showsArabic && !App.strip.showsBoth
            text: visible ? App.strip.arabic : ""
            byInk: true
            pixelSize: root.arabicSize
            color: root.tone
        }
        StripMessage {
            y: root.middle - height / 2
            visible: root.isMessage
            width: Math.min(implicitWidth, root.room - 25)
            text: visible ? App.strip.text : ""
            way: App.strip.animation
            color: root.tone
        }
        Txt {
            y: root.middle - height / 2
            visible: text !== "" && !root.isMessage && (!root.showsArabic || App.strip.showsBoth)
            width: Math.min(implicitWidth, root.room)
            role: "strong"
            text: App.strip.text
            color: root.tone
        }
        Txt {
            y: root.middle - height / 2
            visible: text !== ""
            role: "strong"
            text: App.strip.note
            color: Theme.onStrip.text3
        }
    }
    StripTrail {
        id: trail

        anchors.right: parent.right
        anchors.rightMargin: root.padding
        y: root.middle - height / 2
    }
    ArabicText {
        anchors.right: parent.right
        anchors.rightMargin: root.padding
        y: Math.round(root.middle - height / 2)
        visible: App.strip.showsBoth
        text: visible ? App.strip.arabic : ""
        byInk: true
        pixelSize: root.arabicSize
        color: root.tone
    }
    Rectangle {
        visible: root.hasHem
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.leftMargin: 14
        anchors.rightMargin: 14
        anchors.bottomMargin: 2
        height: 2
        radius: 1
        color: "#24FFFFFF"

        Rectangle {
            anchors.left: parent.left
            width: parent.width * Math.max(0, App.strip.hem)
            height: 2
            radius: 1
            color: Theme.onStrip[App.strip.hemTone] ?? Theme.onStrip.accent
        }
    }
}
