// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A phrase in a dense row. Arabic is never cut: one that is too wide gives way to its
// transliteration, which an Arabic interface does without otherwise.
Item {
    id: root

    property string arabic
    property string title
    property real arabicRoom: 104
    property bool arabicFirst: true // else it stands at the far end
    property bool strong: false
    property color ink: Theme.color.text2
    property color arabicInk: Theme.color.text1

    readonly property bool isAlone: LayoutMirroring.enabled
    readonly property bool fits: Theme.ink.advance(arabic, 17) <= (isAlone ? width : arabicRoom)

    implicitHeight: 36

    ArabicText {
        id: script

        visible: root.fits
        x: (root.arabicFirst || root.isAlone) === root.isAlone ? root.width - width : 0
        anchors.verticalCenter: parent.verticalCenter
        text: root.arabic
        pixelSize: 17
        byInk: true
        color: root.arabicInk
        Accessible.ignored: true
    }
    Txt {
        visible: !(root.fits && root.isAlone)
        x: root.fits && root.arabicFirst ? root.arabicRoom + 12 : 0
        anchors.verticalCenter: parent.verticalCenter
        width: root.width - (root.fits ? (root.arabicFirst ? root.arabicRoom : script.width) + 12 : 0)
        role: "strong"
        text: root.title
        font.weight: root.strong ? Font.DemiBold : Font.Medium
        color: root.ink
        horizontalAlignment: root.isAlone ? Text.AlignRight : Text.AlignLeft
        Accessible.ignored: true
    }
}
