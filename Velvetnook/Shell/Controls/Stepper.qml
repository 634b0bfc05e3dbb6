// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// A value between a minus and a plus, which repeat while they are held.
FocusScope {
    id: root

    property real value: 0
    property real from: 0
    property real to: 100
    property real step: 1
    property string text // the value as the user reads it
    property string name
    property bool ringed: activeFocus && ring.byKeyboard

    signal moved(real value)

    function move(by) {
        const next = Math.min(to, Math.max(from, value + by));
        if (next !== value) {
            moved(next);
        }
    }

    implicitWidth: Math.max(72, label.implicitWidth + 24) + 60
    implicitHeight: 32
    activeFocusOnTab: true
    onActiveFocusChanged: ring.byKeyboard = activeFocus
    Keys.onUpPressed: move(step)
    Keys.onDownPressed: move(-step)
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Plus || event.key === Qt.Key_Minus) {
            move(event.key === Qt.Key_Plus ? step : -step);
            event.accepted = true;
        }
    }
    Accessible.role: Accessible.SpinBox
    Accessible.name: name
    Accessible.description: text
    Accessible.focusable: true
    Accessible.onIncreaseAction: move(step)
    Accessible.onDecreaseAction: move(-step)

    Rectangle {
        anchors.fill: parent
        radius: 10
        color: Theme.color.bg2

        FocusRing {
            id: ring

            property bool byKeyboard: false

            shown: root.ringed
            corner: 10
        }
    }
    IconButton {
        anchors.left: parent.left
        anchors.leftMargin: 1
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "minus"
        iconSize: 14
        name: qsTr("Less")
        tip: ""
        focusPolicy: Qt.NoFocus
        autoRepeat: true
        enabled: root.enabled && root.value > root.from
        Accessible.ignored: true
        onClicked: root.move(-root.step)
    }
    Txt {
        id: label

        anchors.centerIn: parent
        text: root.text
        role: "strong"
        color: root.enabled ? Theme.color.text1 : Theme.color.text4
        Accessible.ignored: true
    }
    IconButton {
        anchors.right: parent.right
        anchors.rightMargin: 1
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        iconName: "plus"
        iconSize: 14
        name: qsTr("More")
        tip: ""
        focusPolicy: Qt.NoFocus
        autoRepeat: true
        enabled: root.enabled && root.value < root.to
        Accessible.ignored: true
        onClicked: root.move(root.step)
    }
}
