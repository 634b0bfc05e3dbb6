// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What a timer is called and how long it runs. A refused value stays in its field.
FocusScope {
    id: root

    property string timerId

    signal done

    function save() {
        title.error = title.visible ? App.timers.rename(timerId, title.text) : "";
        const isSame = !length.visible || length.text === length.begun;
        length.error = isSame ? "" : App.timers.setTime(timerId, length.text);
        if (title.error === "" && length.error === "") {
            done();
        }
    }

    Keys.onEscapePressed: done()
    Component.onCompleted: {
        App.timers.choose(timerId);
        title.text = App.timers.setTitle;
        length.begun = App.timers.setLength;
        length.text = length.begun;
        length.selectAll();
    }

    Rectangle {
        anchors.fill: parent
        radius: 18
        color: Theme.color.bg1
    }
    Column {
        x: 16
        y: 14
        width: parent.width - 32
        spacing: 10
        Field {
            id: length

            property string begun

            visible: App.timers.canAdjust
            width: parent.width
            focus: visible
            label: root.timerId.startsWith("new-") ? qsTr("Length") : qsTr("Time left")
            onAccepted: root.save()
            onEdited: error = ""
        }
        Field {
            id: title

            visible: !root.timerId.startsWith("new-")
            width: parent.width
            focus: !length.visible
            label: qsTr("Title")
            onAccepted: root.save()
            onEdited: error = ""
        }
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 16
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 14
        spacing: 8
        SecondaryButton {
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
