// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: the data as a whole. Each step that takes something away asks first.
Column {
    id: root

    readonly property QtObject page: App.settings.data

    function choose(saves) {
        files.saves = saves;
        files.active = false;
        files.active = true;
    }

    function showQuestion() {
        if (page.question !== "" && !dialog.visible) {
            dialog.open();
        }
    }

    Component.onCompleted: Qt.callLater(showQuestion)

    SettingsGroup {
        title: qsTr("Backup")
        SettingsRow {
            title: qsTr("Export")
            note: qsTr("Counts, notes, timers and settings in one file. The clipboard stays here.")
            SecondaryButton {
                small: true
                text: qsTr("Export…")
                enabled: !root.page.isBusy
                onClicked: root.choose(true)
            }
        }
        SettingsRow {
            title: qsTr("Import")
            note: qsTr("Puts a backup in the place of what is here.")
            SecondaryButton {
                small: true
                text: qsTr("Import…")
                enabled: !root.page.isBusy
                onClicked: root.choose(false)
            }
        }
        SettingsRow {
            title: qsTr("Data folder")
            note: root.page.folder
            SecondaryButton {
                small: true
                text: qsTr("Open")
                onClicked: Qt.openUrlExternally(root.page.folderUrl)
            }
        }
    }
    SettingsGroup {
        title: qsTr("Forgetting")
        SettingsRow {
            title: qsTr("Clear the history")
            note: qsTr("Finished sessions, and what was copied, completed and used.")
            DangerButton {
                small: true
                text: qsTr("Clear…")
                enabled: !root.page.isBusy
                onClicked: root.page.ask("clear")
            }
        }
        SettingsRow {
            title: qsTr("Reset everything")
            note: qsTr("Counts, notes and workspaces. Settings and tools stay as they are.")
            DangerButton {
                small: true
                text: qsTr("Reset…")
                enabled: !root.page.isBusy
                onClicked: root.page.ask("reset")
            }
        }
    }
    Row {
        anchors.left: parent.left
        anchors.leftMargin: 4
        visible: root.page.isBusy || root.page.message !== ""
        topPadding: 12
        spacing: 7
        Icon {
            visible: !root.page.isBusy
            y: 2
            name: root.page.isFailure ? "alert" : "check"
            size: 14
            color: root.page.isFailure ? Theme.color.danger : Theme.color.accent
        }
        Loader {
            active: root.page.isBusy
            sourceComponent: Spinner { diameter: 14 }
        }
        Txt {
            width: root.width - 30
            role: "note"
            wrapMode: Text.WrapAnywhere
            color: root.page.isFailure ? Theme.color.danger : Theme.color.text2
            text: root.page.message
            Accessible.role: Accessible.AlertMessage
        }
    }
    AskDialog {
        id: dialog

        title: root.page.questionTitle
        body: root.page.questionBody
        acceptText: root.page.acceptText
        dangerous: true
        corner: Theme.radius.window
        onAccepted: root.page.accept()
        onRejected: root.page.decline()
    }
    Connections {
        target: root.page
        function onQuestionChanged() {
            root.showQuestion();
        }
    }
    // Made when it is first wanted: a file dialog is not small.
    Loader {
        id: files

        property bool saves: true

        active: false
        source: "BackupFileDialog.qml"
        onLoaded: {
            item.saves = saves;
            item.suggested = root.page.suggestedFile;
            item.open();
        }
        Connections {
            target: files.item
            function onAccepted() {
                if (files.saves) {
                    root.page.exportTo(files.item.selectedFile);
                } else {
                    root.page.openBackup(files.item.selectedFile);
                }
            }
        }
    }
}
