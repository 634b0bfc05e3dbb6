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

    // An Arabic interface shows the phrase alone, and larger.
    readonly property bool isAlone: Qt.application.layoutDirection === Qt.RightToLeft

    implicitHeight: 117

    ArabicText {
        anchors.horizontalCenter: parent.horizontalCenter
        y: root.isAlone ? Math.round((root.height - height) / 2) : 4
        text: root.page.sampleArabic
        pixelSize: (root.isAlone ? 36 : 28) * Theme.phraseScale
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
            visible: root.page.transliteration && !root.isAlone
            width: parent.width
            role: "strong"
            horizontalAlignment: Text.AlignHCenter
            text: root.page.sampleTransliteration
        }
        Txt {
            visible: root.page.translation && !root.isAlone
            width: parent.width
            color: Theme.color.text2
            horizontalAlignment: Text.AlignHCenter
            text: root.page.sampleTranslation
        }
    }
}
