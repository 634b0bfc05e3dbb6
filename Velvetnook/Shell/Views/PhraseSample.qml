// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A phrase with what the settings show of it. It keeps its height, so that nothing below it
// moves when a part goes.
Item {
    id: root

    required property QtObject page

    implicitHeight: 117

    ArabicText {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 4
        text: root.page.sampleArabic
        pixelSize: 28 * Theme.phraseScale
        maximumWidth: root.width - 32
    }
    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 10
        height: 40
        Txt {
            visible: root.page.transliteration
            width: parent.width
            role: "strong"
            horizontalAlignment: Text.AlignHCenter
            text: root.page.sampleTransliteration
        }
        Txt {
            visible: root.page.translation
            width: parent.width
            color: Theme.color.text2
            horizontalAlignment: Text.AlignHCenter
            text: root.page.sampleTranslation
        }
    }
}
