// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The search for a city. What it finds stands in a PlaceResults.
Field {
    id: root

    property Item results // that the arrow down leads to

    iconName: "search"
    hint: qsTr("Search for a city")
    error: App.settings.place.findings
    onEdited: text => App.settings.place.search(text)
    onAccepted: App.settings.place.choose(0)
    Keys.onDownPressed: {
        if (results) {
            results.enter();
        }
    }

    Connections {
        target: App.settings.place
        // A city was chosen: what was typed has done its work.
        function onFoundChanged() {
            if (App.settings.place.found.length === 0 && App.settings.place.findings === "") {
                root.clear();
            }
        }
    }
}
