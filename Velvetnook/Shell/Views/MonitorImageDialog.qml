// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Dialogs

// Asks where the picture of the monitor is to be written.
FileDialog {
    title: qsTr("Export an image")
    fileMode: FileDialog.SaveFile
    defaultSuffix: "png"
    nameFilters: [qsTr("Images (*.png)"), qsTr("All files (*)")]
}
