// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What was recorded of one metric: means and peaks, and who was highest where somebody points.
Item {
    id: root

    readonly property QtObject chart: App.monitor.chart
    readonly property bool isReady: chart.availability === "ready"
    readonly property Item mainItem: plot
    readonly property bool isMirrored: LayoutMirroring.enabled

    MonitorHead {
        width: parent.width
        title: root.chart.title
        note: root.chart.subtitle
        IconButton {
            id: other

            size: 30
            iconName: "updown"
            name: qsTr("What is shown")
            onClicked: metrics.popup(0, other.height + 4)

            PopupMenu {
                id: metrics

                items: root.chart.metrics.map(metric => ({text: metric.label}))
                onChosen: index => root.chart.open(root.chart.metrics[index].value)
            }
        }
        Segmented {
            name: qsTr("How far back")
            options: [{value: 1, label: qsTr("1 h")}, {value: 24, label: qsTr("24 h")},
                      {value: 168, label: qsTr("7 d")}, {value: 720, label: qsTr("30 d")}]
            value: root.chart.hours
            onChosen: value => root.chart.hours = value
        }
    }
    Item {
        id: plot

        visible: root.isReady
        y: 43
        width: parent.width
        height: 142
        activeFocusOnTab: true
        Accessible.role: Accessible.Graphic
        Accessible.name: root.chart.title + ", " + tip.spoken
        Keys.onLeftPressed: root.chart.step(LayoutMirroring.enabled ? 1 : -1)
        Keys.onRightPressed: root.chart.step(LayoutMirroring.enabled ? -1 : 1)

        HistoryChart {
            anchors.fill: parent
            means: root.chart.means
            peaks: root.chart.peaks
            gap: root.chart.gap
            hasMark: root.chart.column >= 0
            mark: root.chart.mark
            mirrored: root.isMirrored
            color: Theme.color.accent
            ground: Theme.color.bg0
            line: Theme.color.line
            dots: Theme.color.text3
        }
        FocusRing {
            shown: plot.activeFocus
            corner: Theme.radius.key
        }
        HoverHandler {
            onPointChanged: {
                if (hovered) {
                    const part = point.position.x / plot.width;
                    root.chart.pointAt(root.isMirrored ? 1 - part : part);
                }
            }
        }
        Txt {
            anchors.left: parent.left
            y: 7
            role: "caption"
            text: root.chart.limitText
            color: Theme.color.text3
        }
    }
    MonitorChartTip {
        id: tip

        visible: root.isReady && root.chart.column >= 0
        plotX: root.isMirrored ? (1 - root.chart.mark.x) * plot.width : root.chart.mark.x * plot.width
        y: 36
    }
    Item {
        visible: root.isReady
        y: 193
        width: parent.width
        height: 14

        Repeater {
            model: root.chart.times
            delegate: Txt {
                required property string modelData
                required property int index

                readonly property real place: index / 6
                readonly property real part: LayoutMirroring.enabled ? 1 - place : place

                x: Math.round(part * (root.width - width))
                role: "caption"
                text: modelData
                color: Theme.color.text3
            }
        }
    }
    AvailabilityView {
        visible: !root.isReady
        y: 40
        width: parent.width
        height: parent.height - 40
        availability: root.chart.availability
        iconName: availability === "error" || availability === "loading" ? "" : "history"
        message: ({unconfigured: qsTr("Nothing is recorded"), empty: qsTr("Nothing recorded yet"),
                   loading: qsTr("Reading the history…"), error: root.chart.problem})[availability] ?? ""
        note: availability === "unconfigured"
              ? qsTr("The history keeps a figure a minute, on this computer only.") : ""
        primaryText: availability === "unconfigured" ? qsTr("Record from now on")
                   : availability === "error" ? qsTr("Try again") : ""
        onPrimary: {
            if (availability === "unconfigured") {
                App.monitor.options.history = true;
            } else {
                root.chart.refresh();
            }
        }
    }
}
