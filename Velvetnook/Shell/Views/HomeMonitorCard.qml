// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The processor and the memory over the last minute.
Card {
    id: root

    interactive: true
    name: qsTr("Monitor")
    onClicked: App.panel.openTool("stats")
    Component.onDestruction: App.monitor.homeWatched = false

    Binding {
        target: App.monitor
        property: "homeWatched"
        value: root.visible && root.Window.visibility !== Window.Hidden
    }
    Row {
        visible: App.monitor.availability !== "error"
        width: parent.width
        spacing: 20

        Repeater {
            model: App.monitor.tiles.slice(0, 2)
            delegate: Item {
                id: figure

                required property var modelData

                width: (parent.width - 20) / 2
                height: 76
                Accessible.role: Accessible.StaticText
                Accessible.name: qsTr("%1: %2").arg(modelData.title)
                                 .arg(modelData.isMissing ? modelData.problem : modelData.whole)

                Txt {
                    anchors.left: parent.left
                    role: "label"
                    text: figure.modelData.title
                    color: Theme.color.text2
                    Accessible.ignored: true
                }
                Txt {
                    anchors.right: parent.right
                    role: "label"
                    text: figure.modelData.isMissing ? figure.modelData.problem : figure.modelData.whole
                    color: figure.modelData.isMissing ? Theme.color.text3 : Theme.color.text1
                    Accessible.ignored: true
                }
                Sparkline {
                    y: 34
                    width: parent.width
                    height: 42
                    inset: 3
                    values: figure.modelData.series
                    color: Theme.color.accent
                    hasDot: true
                    mirrored: LayoutMirroring.enabled
                }
            }
        }
    }
    AvailabilityView {
        visible: App.monitor.availability === "error"
        anchors.fill: parent
        availability: "error"
        iconName: "stats"
        message: qsTr("Nothing can be sampled here.")
    }
}
