// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick

// Single keys that do something are named by Latin letters. On a keyboard that writes another
// script, the key at the same place is meant; an X server counts the places from 8 on.
QtObject {
    readonly property var rows: [{first: 24, letters: "QWERTYUIOP"},
                                 {first: 38, letters: "ASDFGHJKL"},
                                 {first: 52, letters: "ZXCVBNM"}]

    // As event.key, with the letter that is meant.
    function keyOf(event) {
        const isForeign = event.key > 0x7f && event.key < Qt.Key_Escape;
        const row = isForeign ? rows.find(row => event.nativeScanCode >= row.first
                && event.nativeScanCode < row.first + row.letters.length) : undefined;
        return row ? row.letters.charCodeAt(event.nativeScanCode - row.first) : event.key;
    }
    // Whether it comes from holding a letter down: each does its thing once.
    function isHeld(event) {
        const key = keyOf(event);
        return event.isAutoRepeat && key >= Qt.Key_A && key <= Qt.Key_Z;
    }
}
