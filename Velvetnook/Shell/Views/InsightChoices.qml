// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Whose figures, and of which time.
Item {
    id: root

    readonly property QtObject model: App.insights

    implicitHeight: 26

    Row {
        anchors.left: parent.left
        spacing: 6
        Repeater {
            model: root.model.providers
            delegate: Chip {
                required property var modelData

                small: true
                text: modelData.label
                chosen: modelData.value === root.model.provider
                onClicked: App.panel.openTool(modelData.tool)
            }
        }
    }
    ChoiceChip {
        anchors.right: parent.right
        name: qsTr("Period")
        options: root.model.periods
        value: root.model.period
        onValueChosen: value => root.model.period = value
    }
}
