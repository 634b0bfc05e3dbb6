// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The processor over the last minute. The machine is sampled only while this is seen.
DockWidgetCard {
    id: root

    readonly property var figure: App.monitor.tiles[0]
    readonly property bool isMissing: figure.isMissing || App.monitor.availability === "error"

    implicitHeight: 84
    name: qsTr("%1: %2 %3", "monitor, processor, its use").arg(title).arg(figure.title).arg(value.text)
    Component.onDestruction: App.monitor.homeWatched = false

    Binding {
        target: App.monitor
        property: "homeWatched"
        value: root.visible && App.dock.isOpen
    }
    CardLabel {
        y: -2
        width: parent.width
        iconName: root.iconName
        text: root.title
    }
    Txt {
        id: value

        anchors.right: parent.right
        y: -2
        role: "label"
        text: root.isMissing ? root.figure.problem
            : qsTr("%1 %2", "CPU, 18%").arg(root.figure.title).arg(root.figure.whole)
        color: root.isMissing ? Theme.color.text3 : Theme.color.text1
        Accessible.ignored: true
    }
    Sparkline {
        visible: !root.isMissing
        y: 24
        width: parent.width
        height: 34
        inset: 3
        values: root.figure.series
        color: Theme.color.accent
        hasDot: true
        mirrored: LayoutMirroring.enabled
    }
}
