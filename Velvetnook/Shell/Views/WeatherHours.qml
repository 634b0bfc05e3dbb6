// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The next hours as a chart.
Item {
    id: root

    property color ink: Theme.color.accent
    property color words: Theme.color.text1

    readonly property var columns: App.weather.hours

    WeatherChart {
        id: chart

        width: 372
        height: 128
        columns: root.columns
        mirrored: LayoutMirroring.enabled
        ink: root.ink
        ground: Theme.color.bg0
        line: Theme.color.line
        Accessible.role: Accessible.Graphic
        Accessible.name: qsTr("The next hours: %1").arg(
            root.columns.filter(column => column.label !== "")
                        .map(column => column.label + " " + column.value).join(", "))
    }
    Repeater {
        model: root.columns
        delegate: Item {
            id: column

            required property var modelData
            required property int index

            // Its place depends on the chart's direction too.
            x: LayoutMirroring.enabled, chart.columnX(index)
            Txt {
                x: 1 - width / 2
                y: (root.columns, chart.lineY(column.index)) - 25
                width: implicitWidth
                role: "label"
                text: column.modelData.value
                color: root.words
                Accessible.ignored: true
            }
            Txt {
                x: -width / 2
                y: 112
                width: implicitWidth
                role: "caption"
                text: column.modelData.label
                color: Theme.color.text3
                Accessible.ignored: true
            }
        }
    }
}
