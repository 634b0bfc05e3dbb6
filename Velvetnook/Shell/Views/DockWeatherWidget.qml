// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The weather of now, or what it needs.
DockWidgetCard {
    id: root

    readonly property QtObject model: App.weather
    readonly property bool isStale: model.availability === "stale"

    implicitHeight: 62
    name: qsTr("%1: %2", "weather, its words").arg(title).arg(model.spoken)
    Component.onDestruction: App.weather.isOnHome = false

    Binding {
        target: App.weather
        property: "isOnHome"
        value: root.visible && App.dock.isOpen
    }
    Txt {
        id: degrees

        visible: root.model.hasForecast
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        role: "numeral"
        text: root.model.hasForecast ? root.model.temperature : ""
        color: root.isStale ? Theme.color.text2 : Theme.color.text1
        Accessible.ignored: true
    }
    Column {
        anchors.left: root.model.hasForecast ? degrees.right : parent.left
        anchors.leftMargin: root.model.hasForecast ? 12 : 0
        anchors.right: sky.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter

        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "strong"
            lineHeight: 18
            text: root.model.hasForecast ? root.model.sky : root.title
            color: root.isStale ? Theme.color.text2 : Theme.color.text1
            Accessible.ignored: true
        }
        Txt {
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "note"
            text: !root.model.hasForecast ? root.model.message
                : root.model.rain === "" ? root.model.place
                : qsTr("%1 · %2", "place, rain").arg(root.model.place).arg(root.model.rain)
            color: Theme.color.text3
            wrapMode: root.model.hasForecast ? Text.NoWrap : Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
    Icon {
        id: sky

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        name: root.model.hasForecast ? root.model.skyIcon : root.iconName
        size: root.model.hasForecast ? 30 : 18
        color: !root.model.hasForecast || root.isStale ? Theme.color.text3 : Theme.color.accent
    }
}
