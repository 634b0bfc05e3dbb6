// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What matters right now, on quiet cards.
Item {
    id: root

    signal footerActionClicked

    readonly property string footerText: App.home.footer
    readonly property string footerAction: App.home.clipboardNote

    readonly property var sources: ({dhikr: "HomeCounterCard.qml", prayer: "HomePrayerCard.qml",
                                     names: "HomeNameCard.qml", timers: "HomeTimerCard.qml",
                                     weather: "HomeWeatherCard.qml", stats: "HomeMonitorCard.qml"})
    readonly property real column: (width - 36) / 4

    onFooterActionClicked: App.panel.openTool("clipboard")

    implicitWidth: 600
    implicitHeight: 220
    Binding {
        target: App.home
        property: "isShown"
        value: root.visible && root.Window.visibility !== Window.Hidden
    }
    Component.onDestruction: App.home.isShown = false

    ScrollBody {
        anchors.fill: parent

        Repeater {
            model: App.home.cards
            delegate: Loader {
                required property var modelData

                x: {
                    const start = modelData.column * (root.column + 12);
                    return LayoutMirroring.enabled ? root.width - start - width : start;
                }
                y: modelData.row * 116
                width: modelData.columns * (root.column + 12) - 12
                height: 104
                source: root.sources[modelData.tool]
            }
        }
    }
}
