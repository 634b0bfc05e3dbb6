// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What a file looks like: its picture, else a page with the letters of its kind. Of a text, its
// beginning.
Rectangle {
    id: root

    property string family
    property string badge
    property string preview
    property string words
    property bool small: false // in a row

    readonly property bool isPage: ["page", "text", "table", "archive", "media", "other",
                                    "picture"].includes(family)
    readonly property string sign: family === "folder" ? "files" : family === "link" ? "links"
                                 : family === "missing" ? "alert"
                                 : family === "picture" ? "image"
                                 : family === "media" ? "play" : "notes"
    // The colours of the pages, the same by day and by night.
    readonly property var papers: ({page: "#E3A48B", text: "#9DBFD9", table: "#A9C4A6",
                                    archive: "#D9C48F", media: "#C3A9D1"})

    radius: small ? 7 : 10
    color: small && (sheet.visible || picture.visible) ? "transparent" : Theme.color.bg2

    Image {
        id: picture

        anchors.fill: parent
        source: root.width > 0 && root.height > 0 ? root.preview : ""
        sourceSize: Qt.size(root.width, root.height)
        cache: false
        visible: status === Image.Ready
        Accessible.ignored: true
    }
    Rectangle {
        id: sheet

        anchors.centerIn: parent
        visible: root.isPage && root.badge !== "" && !picture.visible
        width: root.small ? 24 : 36
        height: root.small ? 28 : 44
        radius: root.small ? 5 : 7
        color: root.papers[root.family] ?? "#C4BFB4"
        Text {
            anchors.centerIn: parent
            font.family: Theme.familyOf("body")
            font.pixelSize: root.small ? 8 : 11
            font.weight: Font.Bold
            color: "#12100E"
            text: root.badge
            Accessible.ignored: true
        }
    }
    Icon {
        anchors.centerIn: parent
        visible: !sheet.visible && !picture.visible && root.words === ""
        name: root.sign
        size: root.small ? 16 : 24
        color: Theme.color.text3
    }
    Txt {
        anchors.fill: parent
        anchors.margins: 7
        visible: root.words !== "" && !root.small
        role: "caption"
        lineHeight: 13
        maximumLineCount: 4
        clip: true
        wrapMode: Text.Wrap
        color: Theme.color.text2
        text: root.words
    }
}
