// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the prayer times are for: a city of the list, or numbers.
SettingsGroup {
    id: root

    readonly property QtObject page: App.settings.place
    property bool showsNumbers: false

    title: qsTr("Place")

    SettingsRow {
        title: root.page.isSet ? root.page.title : qsTr("No place yet")
        note: root.page.isSet ? root.page.coordinates
                              : qsTr("Choose a city, or set it by its numbers.")
        PlaceSearch {
            width: 250
            results: cities
        }
    }
    PlaceResults {
        id: cities

        width: parent.width
        leftPadding: 6
        rightPadding: 6
        bottomPadding: 6
    }
    SettingsRow {
        title: qsTr("By its numbers")
        note: qsTr("For a place that is not in the list.")
        SecondaryButton {
            small: true
            text: root.showsNumbers ? qsTr("Hide") : qsTr("Show")
            onClicked: root.showsNumbers = !root.showsNumbers
        }
    }
    PlaceNumbers {
        visible: root.showsNumbers
                 || Object.values(root.page.refusals).some(reason => reason !== "")
        width: parent.width
    }
}
