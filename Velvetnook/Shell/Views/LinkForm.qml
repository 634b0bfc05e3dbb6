// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A bookmark that is being written.
FocusScope {
    id: root

    readonly property QtObject model: App.links
    property string linkId // empty: a new one

    signal done

    function begin(id, address, name, words) {
        linkId = id;
        url.text = address;
        title.text = name;
        note.text = words;
        model.dropRefusal();
        url.forceActiveFocus();
        url.selectAll();
    }
    function save() {
        model.save(linkId, url.text, title.text, note.text);
    }

    implicitHeight: column.implicitHeight
    Keys.onEscapePressed: done()

    Column {
        id: column

        width: parent.width
        spacing: 8
        Field {
            id: url

            width: parent.width
            focus: true
            iconName: "links"
            hint: "https://…"
            name: qsTr("Link to the source")
            error: root.model.refusal
            inputMethodHints: Qt.ImhUrlCharactersOnly
            onEdited: root.model.dropRefusal()
            onAccepted: root.save()
        }
        Field {
            id: title

            width: parent.width
            hint: qsTr("Title")
            onAccepted: root.save()
        }
        Field {
            id: note

            width: parent.width
            visible: url.error === ""
            hint: qsTr("Note")
            onAccepted: root.save()
        }
        Row {
            anchors.right: parent.right
            spacing: 8
            GhostButton {
                small: true
                text: qsTr("Cancel")
                onClicked: root.done()
            }
            PrimaryButton {
                small: true
                text: qsTr("Save")
                onClicked: root.save()
            }
        }
    }
    Connections {
        target: root.model
        function onSaved() { root.done(); }
    }
}
