// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// An icon of the set, drawn in its colour at the device's own resolution.
Image {
    id: root

    property string name
    property int size: 18
    property color color: Theme.color.text2
    property bool filled: false // the favourite star
    // Undo, arrows and chevrons point with the reading direction; the rest stays.
    property bool mirrored: LayoutMirroring.enabled && turning.includes(name)

    readonly property list<string> turning: ["undo", "left", "right", "arrow", "enter", "out"]

    width: size
    height: size
    sourceSize: Qt.size(size, size)
    mirror: mirrored
    source: name === "" ? "" : "image://icon/" + name + "/" + String(color).slice(1) + "/"
                               + Theme.strokeFor(size) + (filled ? "/filled" : "")
    Accessible.ignored: true
}
