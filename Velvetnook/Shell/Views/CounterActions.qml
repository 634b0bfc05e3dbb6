// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What can be done with the session that is counted.
Item {
    id: root

    signal resetWanted

    implicitHeight: 36

    Row {
        anchors.left: parent.left
        spacing: 8

        IconButton {
            filled: true
            iconName: "undo"
            name: qsTr("Undo the last count")
            keyHint: "Z"
            enabled: App.counter.canUndo
            onClicked: App.counter.undo()
        }
        SecondaryButton {
            iconName: App.counter.isPaused ? "play" : "pause"
            iconSize: 17
            text: App.counter.isPaused ? qsTr("Resume", "@action:button the session")
                                       : qsTr("Pause", "@action:button the session")
            onClicked: App.counter.togglePause()
        }
    }
    Row {
        anchors.right: parent.right
        spacing: 8

        IconButton {
            iconName: "reset"
            name: qsTr("Start again from zero")
            keyHint: "R"
            onClicked: root.resetWanted()
        }
        IconButton {
            iconName: "history"
            name: qsTr("History")
            keyHint: "H"
            onClicked: App.panel.openTool("history")
        }
        PrimaryButton {
            iconName: "finish"
            horizontalPadding: 18
            text: qsTr("Finish", "@action:button the session")
            onClicked: App.counter.finish()
        }
    }
}
