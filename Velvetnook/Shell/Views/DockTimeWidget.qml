// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How long the user has been at the screen on the day that the tool shows.
DockWidgetCard {
    id: root

    readonly property QtObject model: App.screenTime
    readonly property bool isReady: model.availability === "ready"
    readonly property string span: model.hours === "" ? qsTr("%1 min").arg(model.minutes)
                                 : qsTr("%1 h %2 min").arg(model.hours).arg(model.minutes)

    implicitHeight: 62
    name: qsTr("%1: %2", "screen time, how long").arg(title).arg(words.text)
    Component.onDestruction: App.screenTime.watched = false

    Binding {
        target: App.screenTime
        property: "watched"
        value: root.visible && App.dock.isOpen
    }
    Icon {
        id: sign

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        name: root.iconName
        size: 18
        color: Theme.color.text3
    }
    Column {
        anchors.left: sign.right
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        Txt {
            id: words

            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "strong"
            lineHeight: 18
            text: root.isReady ? qsTr("%1 · %2", "today, 3 h 12 min").arg(root.model.title).arg(root.span)
                               : root.title
            Accessible.ignored: true
        }
        Txt {
            visible: text !== ""
            width: parent.width
            horizontalAlignment: Text.AlignLeft
            role: "note"
            text: root.isReady ? root.model.stretch
                : ({unconfigured: qsTr("Nothing is counted"), error: root.model.problem})
                  [root.model.availability] ?? qsTr("Nothing counted yet")
            color: Theme.color.text3
            Accessible.ignored: true
        }
    }
}
