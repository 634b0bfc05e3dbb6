// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The weather of now, or what it needs.
Card {
    id: root

    readonly property QtObject model: App.weather
    readonly property bool isStale: model.availability === "stale"

    interactive: true
    name: qsTr("Weather: %1").arg(model.spoken)
    onClicked: App.panel.openTool("weather")
    Component.onDestruction: App.weather.isOnHome = false

    Binding {
        target: App.weather
        property: "isOnHome"
        value: root.visible && App.panel.isOpen
    }
    CardLabel {
        width: parent.width
        iconName: root.model.skyIcon
        text: root.model.hasForecast ? root.model.sky : qsTr("Weather")
    }
    Digits {
        visible: root.model.hasForecast
        anchors.left: parent.left
        y: 26
        role: "numeral"
        text: root.model.temperature
        color: root.isStale ? Theme.color.text2 : Theme.color.text1
        Accessible.ignored: true
    }
    Txt {
        visible: root.model.hasForecast
        y: 64
        width: parent.width
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "note"
        text: root.model.rain
        color: Theme.color.text3
        Accessible.ignored: true
    }
    Txt {
        visible: !root.model.hasForecast
        y: 26
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        role: "note"
        text: root.model.message
        color: Theme.color.text3
        wrapMode: Text.Wrap
        maximumLineCount: 3
        elide: Text.ElideRight
        Accessible.ignored: true
    }
}
