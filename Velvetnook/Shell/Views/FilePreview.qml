// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A closer look at a file or a text, over the view.
FocusScope {
    id: root

    property string title
    property string note
    property string family
    property string badge
    property string preview
    property string words

    readonly property bool hasPicture: preview !== "" && picture.status === Image.Ready
    property Item before: null

    function show(fields) {
        for (const name in fields) {
            root[name] = fields[name];
        }
        before = Window.activeFocusItem;
        visible = true;
        forceActiveFocus();
    }
    function hide() {
        visible = false;
        if (before) {
            before.forceActiveFocus();
        }
    }

    anchors.fill: parent
    z: 10
    visible: false
    Accessible.role: Accessible.Pane
    Accessible.name: title
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Up || event.key === Qt.Key_Down) {
            const room = Math.max(0, body.contentHeight - body.height);
            body.contentY = Math.max(0, Math.min(room, body.contentY
                                                 + (event.key === Qt.Key_Up ? -40 : 40)));
        } else if ([Qt.Key_Escape, Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key)) {
            hide();
        } else {
            event.accepted = false;
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 16
        color: Theme.color.bg1
    }
    MouseArea {
        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.hide()
    }
    Image {
        id: picture

        anchors.fill: parent
        anchors.margins: 12
        anchors.bottomMargin: 38
        source: root.visible && root.preview !== ""
                ? root.preview.replace(/^(image:\/\/preview\/\d+)/, "$1/whole") : ""
        sourceSize: Qt.size(width, height)
        fillMode: Image.Pad
        cache: false
        Accessible.ignored: true
    }
    ScrollBody {
        id: body

        anchors.fill: parent
        anchors.margins: 16
        anchors.bottomMargin: 38
        visible: root.words !== ""
        contentHeight: text.implicitHeight
        Txt {
            id: text

            width: body.width
            wrapMode: Text.Wrap
            text: root.words
        }
    }
    FileTile {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 44
        width: 150
        height: 90
        visible: root.words === "" && !root.hasPicture
        family: root.family
        badge: root.badge
    }
    Row {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 12
        spacing: 10
        Txt {
            width: Math.min(implicitWidth, parent.width - size.width - 10)
            role: "strong"
            elide: Text.ElideMiddle
            text: root.title
        }
        Txt {
            id: size

            role: "note"
            color: Theme.color.text3
            text: root.note
        }
    }
}
