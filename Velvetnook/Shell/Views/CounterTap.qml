// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The ring with its number. A press anywhere on the square counts, at once.
T.Control {
    id: root

    readonly property bool isInert: App.counter.isPaused

    function count() {
        if (!isInert) {
            App.counter.increment();
        }
    }
    function take(event) {
        const counts = event.key === Qt.Key_Space || event.key === Qt.Key_Return
                     || event.key === Qt.Key_Enter;
        // A key that is held down is one count.
        if (counts && !event.isAutoRepeat) {
            count();
        }
        return counts;
    }

    focusPolicy: Qt.StrongFocus
    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Count %1", "@action:button").arg(App.counter.title)
    Accessible.description: App.counter.progress
    Accessible.focusable: true
    Accessible.onPressAction: count()
    Keys.onPressed: event => event.accepted = take(event)

    BeadRing {
        id: ring

        diameter: 220
        discDiameter: 160
        count: App.counter.count
        target: App.counter.target
        paused: root.isInert
        discLit: area.containsMouse && !root.isInert
        name: App.counter.progress

        Column {
            anchors.centerIn: parent
            spacing: 2

            Digits {
                anchors.horizontalCenter: parent.horizontalCenter
                text: App.counter.countText
                pixelSize: Math.min(68, Math.floor(138 / (text.length * 0.56)))
                color: root.isInert ? Theme.color.text3 : Theme.color.text1
                crossFade: !Theme.reducedMotion
            }
            Txt {
                readonly property bool isNews: App.counter.isReached && !root.isInert

                anchors.horizontalCenter: parent.horizontalCenter
                text: App.counter.status
                font.weight: isNews ? Font.DemiBold : Font.Normal
                color: isNews ? Theme.color.accent : Theme.color.text2
                Accessible.role: isNews ? Accessible.AlertMessage : Accessible.StaticText
            }
        }
    }
    Rectangle {
        visible: root.visualFocus
        anchors.centerIn: parent
        width: 168
        height: 168
        radius: 84
        color: "transparent"
        border.width: 2
        border.color: Theme.color.accent
    }
    MouseArea {
        id: area

        anchors.fill: parent
        hoverEnabled: true
        cursorShape: root.isInert ? Qt.ArrowCursor : Qt.PointingHandCursor
        onPressed: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.count();
        }
    }
}
