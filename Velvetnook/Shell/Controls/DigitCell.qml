// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// One place of a number. The old digit fades out under the new one.
Item {
    id: root

    property string letter
    property string role
    property real pixelSize
    property color color
    property int weight
    property bool crossFade: false

    readonly property real wanted: Theme.cellWidth(role, letter, pixelSize)

    width: wanted > 0 ? wanted : shown.implicitWidth
    height: shown.implicitHeight

    onLetterChanged: {
        if (root.crossFade) {
            former.text = shown.text;
            fade.restart();
        }
        shown.text = root.letter;
    }
    Component.onCompleted: shown.text = root.letter

    Txt {
        id: shown

        anchors.horizontalCenter: parent.horizontalCenter
        role: root.role
        pixelSize: root.pixelSize
        font.letterSpacing: 0
        font.weight: root.weight
        color: root.color
        elide: Text.ElideNone
        Accessible.ignored: true
    }
    Txt {
        id: former

        anchors.horizontalCenter: parent.horizontalCenter
        role: root.role
        pixelSize: root.pixelSize
        font.letterSpacing: 0
        font.weight: root.weight
        color: root.color
        opacity: 0
        visible: opacity > 0
        elide: Text.ElideNone
        Accessible.ignored: true
    }
    ParallelAnimation {
        id: fade

        NumberAnimation { target: shown; property: "opacity"; from: 0; to: 1; duration: 90 }
        NumberAnimation { target: former; property: "opacity"; from: 1; to: 0; duration: 90 }
    }
}
