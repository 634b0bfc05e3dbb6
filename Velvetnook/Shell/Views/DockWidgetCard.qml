// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What a widget of the dock stands on: a way to its tool.
Card {
    property string tool
    property string title
    property string summary
    property string iconName

    interactive: true
    onClicked: {
        App.dock.toolWanted(tool);
        App.dock.closeWanted();
    }
}
