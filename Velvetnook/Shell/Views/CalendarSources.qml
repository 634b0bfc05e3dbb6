// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Dialogs
import Velvetnook.Application
import Velvetnook.Shell

// The files and folders that the calendar reads.
FocusScope {
    id: root

    readonly property QtObject model: App.calendar

    signal leaveWanted

    function begin() {
        model.dropRefusal();
        field.text = "";
        field.forceActiveFocus();
    }
    function add() {
        if (field.text.trim() !== "") {
            model.addSource(field.text);
        }
    }
    function ask(dialog) {
        App.panel.beginDialog();
        dialog.open();
    }

    // The dialog has kept the keys.
    function answered() {
        App.panel.endDialog();
        field.forceActiveFocus();
    }

    Keys.onEscapePressed: leaveWanted()

    IconButton {
        id: back

        anchors.left: parent.left
        anchors.leftMargin: -6
        size: 30
        iconName: "left"
        name: qsTr("Back to the day")
        keyHint: "Esc"
        onClicked: root.leaveWanted()
    }
    Txt {
        anchors.left: back.right
        anchors.leftMargin: 2
        height: 30
        role: "strong"
        verticalAlignment: Text.AlignVCenter
        text: qsTr("Your calendars")
    }
    Row {
        anchors.right: parent.right
        spacing: 4
        SecondaryButton {
            small: true
            text: qsTr("File…")
            onClicked: root.ask(file)
        }
        SecondaryButton {
            small: true
            text: qsTr("Folder…")
            onClicked: root.ask(folder)
        }
    }
    Field {
        id: field

        y: 38
        width: parent.width
        focus: true
        iconName: "plus"
        hint: qsTr("Write a path, or drop a file here")
        error: root.model.refusal
        readOnly: root.model.isAdding
        onEdited: root.model.dropRefusal()
        onAccepted: root.add()
    }
    ListView {
        id: rows

        y: 38 + field.implicitHeight + 6
        width: parent.width
        height: inStrip.y - y - 6
        activeFocusOnTab: true
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        model: root.model.sources
        Keys.onDeletePressed: if (currentItem) { root.model.removeSource(currentItem.path); }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Your calendars")

        delegate: ListRow {
            id: row

            required title
            required note
            required property int index
            required property string path
            required property string problem

            width: ListView.view.width
            height: problem === "" ? 44 : 60
            leftPadding: 8
            rightPadding: 4
            iconName: "calendar"
            selected: ListView.isCurrentItem && rows.activeFocus
            focusPolicy: Qt.NoFocus
            bottomPadding: problem === "" ? 0 : 18
            onClicked: {
                rows.currentIndex = index;
                rows.forceActiveFocus();
            }
            IconButton {
                size: 28
                iconSize: 15
                iconName: "x"
                name: qsTr("Take %1 off the list").arg(row.title)
                tip: qsTr("Take off the list")
                keyHint: qsTr("Del")
                onClicked: root.model.removeSource(row.path)
            }
            Txt {
                parent: row
                visible: row.problem !== ""
                anchors.left: parent.left
                anchors.leftMargin: 36
                anchors.right: parent.right
                anchors.rightMargin: 8
                y: 41
                role: "caption"
                horizontalAlignment: Text.AlignLeft
                color: Theme.color.warn
                text: row.problem
            }
        }
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: inStrip.verticalCenter
        role: "label"
        color: Theme.color.text2
        text: qsTr("Show the next event in the strip")
    }
    Toggle {
        id: inStrip

        anchors.right: parent.right
        anchors.bottom: start.top
        anchors.bottomMargin: 8
        name: qsTr("Show the next event in the strip")
        checked: root.model.isInStrip
        onToggled: checked => root.model.isInStrip = checked
    }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: start.verticalCenter
        role: "label"
        color: Theme.color.text2
        text: qsTr("Weeks begin on")
    }
    Picker {
        id: start

        anchors.right: parent.right
        anchors.bottom: parent.bottom
        name: qsTr("Weeks begin on")
        options: root.model.weekStarts
        value: root.model.weekStart
        onChosen: value => root.model.weekStart = value
    }
    Connections {
        target: root.model
        function onAdded() { field.text = ""; }
    }
    FileDialog {
        id: file

        title: qsTr("Add a calendar file")
        nameFilters: [qsTr("Calendars (*.ics)"), qsTr("All files (*)")]
        onAccepted: root.model.addSourceUrl(selectedFile)
        onVisibleChanged: if (!visible) { root.answered(); }
    }
    FolderDialog {
        id: folder

        title: qsTr("Add a folder of calendars")
        onAccepted: root.model.addSourceUrl(selectedFolder)
        onVisibleChanged: if (!visible) { root.answered(); }
    }
}
