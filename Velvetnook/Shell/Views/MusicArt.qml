// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The picture of what plays; a note where there is none, or none that can be read.
Item {
    id: root

    property string source

    Accessible.ignored: true

    Rectangle {
        visible: picture.status !== Image.Ready
        anchors.fill: parent
        radius: 20
        color: Theme.color.bg1

        Icon {
            anchors.centerIn: parent
            name: "music"
            size: 64
            color: Theme.color.text4
        }
    }
    Image {
        id: picture

        anchors.fill: parent
        sourceSize: Qt.size(width, height)
        source: root.source
        asynchronous: true
        cache: false // of one picture after another none is wanted again
    }
}
