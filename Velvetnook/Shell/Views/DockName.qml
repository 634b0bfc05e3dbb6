// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Names an item, or the workspace where there is none.
FocusScope {
    id: root

    property string itemId
    property string title

    signal done

    function takeFocus(reason) {
        name.forceActiveFocus(reason);
        name.selectAll();
    }
    function take() {
        const isKept = itemId === "" ? App.dock.renameWorkspace(name.text)
                                     : App.dock.renameItem(itemId, name.text);
        if (isKept) {
            done();
        }
    }

    DockPageHead {
        id: head

        width: parent.width
        title: root.itemId === "" ? qsTr("Name of the workspace") : qsTr("Name of the item")
        onDone: root.done()
    }
    Column {
        anchors.top: head.bottom
        anchors.topMargin: 14
        width: parent.width
        spacing: 14

        Field {
            id: name

            width: parent.width
            focus: true
            name: head.title
            text: root.title
            maximumLength: 80
            onAccepted: root.take()
        }
        PrimaryButton {
            anchors.right: parent.right
            text: qsTr("Rename")
            enabled: name.text.trim() !== ""
            onClicked: root.take()
        }
    }
}
