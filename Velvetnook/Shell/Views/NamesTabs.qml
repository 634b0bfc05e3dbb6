// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Which list is looked through.
Row {
    id: root

    spacing: 6
    Accessible.role: Accessible.PageTabList
    Accessible.name: qsTr("Lists")

    Repeater {
        model: [{value: "names", label: qsTr("Names")}, {value: "phrases", label: qsTr("Phrases")},
                {value: "favourites", label: qsTr("Favourites")}]
        delegate: Chip {
            required property var modelData

            small: true
            text: modelData.label
            chosen: App.names.tab === modelData.value
            onClicked: App.names.tab = modelData.value
        }
    }
}
