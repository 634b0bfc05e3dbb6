// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One entry of the clipboard's history.
Item {
    id: root

    required property int index
    required property string entryId
    required property string kind
    required property string title
    required property string detail
    required property string icon
    required property string meta
    required property var preview
    required property bool previewed
    required property bool favourite
    required property bool hidden
    required property bool whole
    required property bool code
    property bool selected: false

    signal clicked
    signal doubleClicked
    signal menuWanted(real x, real y)

    readonly property bool isImage: kind === "image" && !hidden
    readonly property color ink: hidden ? Theme.color.text2 : Theme.color.text1

    function look() {
        if (isImage || kind === "files") {
            App.clipboard.look(entryId);
        }
    }

    onEntryIdChanged: look()
    Component.onCompleted: look()
    Accessible.role: Accessible.ListItem
    Accessible.name: detail === "" ? title : title + " " + detail
    Accessible.description: favourite ? meta + " · " + qsTr("favourite") : meta
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: clicked()

    Rectangle {
        id: ground

        anchors.fill: parent
        anchors.rightMargin: 10
        anchors.bottomMargin: 10
        radius: 14
        color: root.selected ? Theme.color.soft
             : area.pressed ? Theme.color.bg3 : area.containsMouse ? Theme.color.bg2 : Theme.color.bg1
        border.width: root.selected ? Theme.outline : 0
        border.color: Theme.color.accent
    }
    Item {
        anchors.fill: ground
        anchors.margins: 12

        Picture {
            id: sample

            visible: root.isImage && root.previewed
            anchors.left: parent.left
            anchors.top: parent.top
            anchors.topMargin: -2
            width: 54
            height: 36
            corner: 7
            image: root.preview
        }
        Txt {
            id: words

            anchors.left: sample.visible ? sample.right : parent.left
            anchors.leftMargin: sample.visible ? 10 : 0
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.topMargin: root.isImage ? 8 : -2
            role: root.whole || root.hidden ? "note" : "label"
            lineHeight: 17
            color: root.ink
            wrapMode: root.whole ? Text.Wrap : Text.NoWrap
            elide: Text.ElideRight
            maximumLineCount: root.whole ? 2 : 1
            font.family: root.code ? "monospace" : Theme.familyOf(role)
            horizontalAlignment: Text.AlignLeft
            text: root.title
            Accessible.ignored: true
        }
        Txt {
            visible: text !== "" && !root.whole
            anchors.left: words.left
            anchors.right: parent.right
            anchors.top: words.bottom
            role: "note"
            color: Theme.color.text3
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            text: root.detail
            Accessible.ignored: true
        }
        Icon {
            id: sign

            anchors.left: parent.left
            anchors.bottom: parent.bottom
            anchors.bottomMargin: -2
            size: 13
            name: root.icon
            color: Theme.color.text3
        }
        Txt {
            anchors.left: sign.right
            anchors.leftMargin: 5
            anchors.verticalCenter: sign.verticalCenter
            role: "caption"
            color: Theme.color.text3
            text: root.meta
            Accessible.ignored: true
        }
        Icon {
            visible: root.favourite
            anchors.right: parent.right
            anchors.verticalCenter: sign.verticalCenter
            size: 13
            name: "star"
            filled: true
            color: Theme.color.accent
        }
    }
    MouseArea {
        id: area

        anchors.fill: ground
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton
        onClicked: mouse => {
            root.clicked();
            if (mouse.button === Qt.RightButton) {
                const at = area.mapToItem(root, mouse.x, mouse.y);
                root.menuWanted(at.x, at.y);
            }
        }
        onDoubleClicked: mouse => {
            if (mouse.button === Qt.LeftButton) {
                root.doubleClicked();
            }
        }
    }
}
