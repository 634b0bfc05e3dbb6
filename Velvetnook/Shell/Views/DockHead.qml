// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Dialogs
import Velvetnook.Application
import Velvetnook.Shell

// The name of the open workspace, what can be added to it and what can be done with it.
Item {
    id: root

    property alias main: plus

    signal pageWanted(string page, string itemId, string title)

    readonly property bool hasMenu: adding.visible || managing.visible
    readonly property bool isOnly: App.dock.workspaces.length < 2

    function addChosen(index) {
        const pages = ["apps", "tools", "link"];
        if (index < pages.length) {
            pageWanted(pages[index], "", "");
        } else if (index === 3 || index === 4) {
            chooser.sourceComponent = index === 3 ? files : folders;
            chooser.item.open();
        } else if (index === 5) {
            App.dock.addDivider();
        } else {
            pageWanted("widgets", "", "");
        }
    }
    function manage(index) {
        if (index === 0) {
            pageWanted("name", "", App.dock.title);
        } else if (index === 1) {
            App.dock.moveWorkspace(-1);
        } else if (index === 2) {
            App.dock.moveWorkspace(1);
        } else if (index === 4) {
            App.dock.addWorkspace();
        } else if (index === 5) {
            App.dock.settingsWanted();
            App.dock.closeWanted();
        } else if (index === 7) {
            question.open();
        }
    }

    implicitHeight: 32

    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 4
        anchors.right: plus.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        role: "heading"
        text: App.dock.title
        Accessible.role: Accessible.Heading
    }
    IconButton {
        id: plus

        anchors.right: more.left
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "plus"
        name: qsTr("Add to this workspace")
        tip: root.hasMenu ? "" : qsTr("Add") // short: beyond the panel nothing is drawn
        onClicked: adding.popupAt(plus)
    }
    IconButton {
        id: more

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "more"
        name: qsTr("This workspace")
        tip: root.hasMenu ? "" : qsTr("More")
        onClicked: managing.popupAt(more)
    }
    DockMenu {
        id: adding

        items: [{text: qsTr("Application…"), iconName: "grid"},
                {text: qsTr("Tool…"), iconName: "sparkle"},
                {text: qsTr("Link…"), iconName: "links"},
                {text: qsTr("Files…"), iconName: "files"},
                {text: qsTr("Folder…"), iconName: "shelf"},
                {text: qsTr("Divider"), iconName: "minus"},
                {text: qsTr("Widgets…"), iconName: "home"}]
        onChosen: index => root.addChosen(index)
    }
    DockMenu {
        id: managing

        items: [{text: qsTr("Rename…"), iconName: "text"},
                {text: qsTr("Move it before"), iconName: "up", enabled: App.dock.current > 0},
                {text: qsTr("Move it behind"), iconName: "down",
                 enabled: App.dock.current < App.dock.workspaces.length - 1},
                {separator: true},
                {text: qsTr("New workspace"), iconName: "plus", enabled: App.dock.canAddWorkspace},
                {text: qsTr("Dock settings"), iconName: "settings"},
                {separator: true},
                {text: qsTr("Remove…"), iconName: "trash", enabled: !root.isOnly}]
        onChosen: index => root.manage(index)
    }
    AskDialog {
        id: question

        corner: Theme.radius.dock
        dangerous: true
        title: qsTr("Remove %1?").arg(App.dock.title)
        body: qsTr("Its items go with it. What they lead to stays where it is.")
        acceptText: qsTr("Remove")
        cancelText: qsTr("Keep")
        onAccepted: App.dock.removeWorkspace()
    }
    Loader { id: chooser }
    Component {
        id: files

        FileDialog {
            title: qsTr("Choose files for the dock")
            fileMode: FileDialog.OpenFiles
            onVisibleChanged: visible ? App.dock.beginDialog() : App.dock.endDialog()
            onAccepted: App.dock.drop(App.dock.current, selectedFiles, "")
        }
    }
    Component {
        id: folders

        FolderDialog {
            title: qsTr("Choose a folder for the dock")
            onVisibleChanged: visible ? App.dock.beginDialog() : App.dock.endDialog()
            onAccepted: App.dock.drop(App.dock.current, [selectedFolder], "")
        }
    }
}
