// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Dialogs

// Asks for the file of a backup: where to write it, or which to read.
FileDialog {
    property bool saves: true
    property url suggested

    title: saves ? qsTr("Export a backup") : qsTr("Import a backup")
    fileMode: saves ? FileDialog.SaveFile : FileDialog.OpenFile
    defaultSuffix: "json"
    nameFilters: [qsTr("Backups (*.json)"), qsTr("All files (*)")]
    onSuggestedChanged: {
        if (saves) {
            selectedFile = suggested;
        }
    }
}
