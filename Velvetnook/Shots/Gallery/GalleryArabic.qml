// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

Column {
    padding: 24
    spacing: 6

    Repeater {
        model: [50, 44, 36, 24, 18, 14]
        delegate: Rectangle {
            id: box

            required property int modelData

            width: words.width
            height: words.height
            color: Theme.color.bg1
            ArabicText { id: words; text: "سُبْحَانَ ٱللَّٰهِ"; pixelSize: box.modelData }
        }
    }
    Rectangle {
        width: 340
        height: fitted.height
        color: Theme.color.bg1
        ArabicText {
            id: fitted
            width: parent.width
            maximumWidth: parent.width
            text: "لَا إِلَٰهَ إِلَّا ٱللَّٰهُ وَحْدَهُ"
            pixelSize: 50
        }
    }
    Rectangle {
        width: 340
        height: wrapped.height
        color: Theme.color.bg1
        ArabicText {
            id: wrapped
            width: parent.width
            maximumWidth: parent.width
            text: "سُبْحَانَ ٱللَّهِ وَبِحَمْدِهِ عَدَدَ خَلْقِهِ وَرِضَا نَفْسِهِ وَزِنَةَ عَرْشِهِ وَمِدَادَ كَلِمَاتِهِ"
            pixelSize: 36
        }
    }
}
