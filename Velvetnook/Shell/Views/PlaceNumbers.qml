// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A place by its latitude, longitude and time zone. What is refused stays in its field.
Grid {
    id: root

    readonly property QtObject page: App.settings.place

    columns: 2
    leftPadding: 16
    rightPadding: 16
    bottomPadding: 16
    spacing: 12

    Repeater {
        model: [{name: "latitude", label: qsTr("Latitude, north positive"), hint: "51.5074"},
                {name: "longitude", label: qsTr("Longitude, east positive"), hint: "-0.1278"},
                {name: "timezone", label: qsTr("Time zone"), hint: "Europe/London"},
                {name: "country", label: qsTr("Country, for the automatic method"), hint: "GB"}]
        delegate: ValueField {
            required property var modelData

            width: (root.width - 44) / 2
            label: modelData.label
            hint: modelData.hint
            value: root.page.fields[modelData.name]
            error: root.page.refusals[modelData.name]
            onFinished: text => root.page.setField(modelData.name, text)
        }
    }
}
