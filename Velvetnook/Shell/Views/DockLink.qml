// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Adds a web address.
FocusScope {
    id: root

    signal done

    function takeFocus(reason) {
        address.forceActiveFocus(reason);
    }
    function take() {
        address.error = App.dock.addLink(address.text, title.text);
        if (address.error === "") {
            done();
        }
    }

    DockPageHead {
        id: head

        width: parent.width
        title: qsTr("Link")
        onDone: root.done()
    }
    Column {
        anchors.top: head.bottom
        anchors.topMargin: 14
        width: parent.width
        spacing: 14

        Field {
            id: address

            width: parent.width
            focus: true
            label: qsTr("Address")
            hint: qsTr("example.org")
            inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
            maximumLength: 2048
            onEdited: error = ""
            onAccepted: root.take()
        }
        Field {
            id: title

            width: parent.width
            label: qsTr("Name")
            hint: qsTr("as the address")
            maximumLength: 80
            onAccepted: root.take()
        }
        PrimaryButton {
            anchors.right: parent.right
            text: qsTr("Add")
            enabled: address.text.trim() !== ""
            onClicked: root.take()
        }
    }
}
