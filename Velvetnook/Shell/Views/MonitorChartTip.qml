// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the chart says at its mark: when, how much, and who was highest.
Rectangle {
    id: root

    required property real plotX

    readonly property QtObject chart: App.monitor.chart
    readonly property string spoken: [chart.markTime, chart.markValue, chart.markPeak, chart.markCauses]
                                     .filter(text => text !== "").join(", ")

    x: Math.round(plotX + 10 + width <= parent.width ? plotX + 10 : plotX - 10 - width)
    width: Math.max(figures.implicitWidth, Math.min(causes.implicitWidth, 260)) + 20
    height: causes.visible ? 44 : 28
    radius: 9
    color: Theme.color.bg3
    Accessible.ignored: true

    Row {
        id: figures

        x: 10
        y: 6
        spacing: 6

        Txt {
            role: "label"
            text: root.chart.markTime
            Accessible.ignored: true
        }
        Txt {
            role: "label"
            font.weight: Font.DemiBold
            text: root.chart.markValue
            Accessible.ignored: true
        }
        Txt {
            role: "label"
            text: root.chart.markPeak
            color: Theme.color.text2
            Accessible.ignored: true
        }
    }
    Txt {
        id: causes

        visible: text !== ""
        x: 10
        y: 24
        width: parent.width - 20
        role: "caption"
        text: root.chart.markCauses
        color: Theme.color.text2
        Accessible.ignored: true
    }
}
