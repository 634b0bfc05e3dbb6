// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The open note, to read and to write in.
FocusScope {
    id: root

    readonly property QtObject model: App.notes

    function load() {
        pad.text = model.text;
        title.text = model.title;
        if (model.isScratchpad) {
            pad.input.cursorPosition = pad.input.length; // one writes on below
        }
    }

    Component.onCompleted: load()
    Connections {
        target: root.model
        function onLoaded() {
            root.load();
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius.cardLarge
        color: Theme.color.bg1
    }
    Txt {
        visible: root.model.isScratchpad
        anchors.fill: title
        role: "heading"
        text: qsTr("Scratchpad")
    }
    T.TextField {
        id: title

        visible: !root.model.isScratchpad
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        y: 16
        height: 22
        clip: true
        selectByMouse: true
        maximumLength: 200
        autoScroll: activeFocus // else its beginning is what is seen
        verticalAlignment: TextInput.AlignVCenter
        font: Theme.type.heading
        color: Theme.color.text1
        selectionColor: Theme.color.soft2
        selectedTextColor: Theme.color.text1
        Accessible.name: qsTr("Title")
        onTextEdited: root.model.editTitle(text)
        onAccepted: pad.forceActiveFocus()
        KeyNavigation.down: pad
        cursorDelegate: Rectangle {
            visible: title.activeFocus
            width: 2
            radius: 1
            color: Theme.color.accent
        }
        Txt {
            visible: title.text === "" && title.preeditText === ""
            anchors.fill: parent
            role: "heading"
            color: root.model.titleHint === qsTr("Title") ? Theme.color.text3 : Theme.color.text1
            text: root.model.titleHint
            Accessible.ignored: true
        }
    }
    TextPad {
        id: pad

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        anchors.top: title.bottom
        anchors.topMargin: 8
        anchors.bottom: foot.top
        anchors.bottomMargin: 4
        focus: true
        framed: false
        name: root.model.isScratchpad ? qsTr("Scratchpad") : qsTr("Note")
        hint: root.model.isScratchpad ? qsTr("Whatever is on your mind") : qsTr("Write something")
        onEdited: text => root.model.edit(text)
    }
    NoteFoot {
        id: foot

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 18
        anchors.rightMargin: 10
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 8
    }
}
