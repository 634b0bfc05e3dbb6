// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A value on a track. Wheel and arrows move by a step.
Item {
    id: root

    property real from: 0
    property real to: 1
    property real step: (to - from) / 20
    property real value: from
    property string name
    property string valueText // for a screen reader
    property bool lit: slider.hovered || slider.pressed
    property bool ringed: slider.visualFocus

    signal moved(real value)

    implicitWidth: 168
    implicitHeight: 30

    T.Slider {
        id: slider

        anchors.fill: parent
        from: root.from
        to: root.to
        stepSize: root.step
        value: root.value
        live: true
        hoverEnabled: true
        wheelEnabled: true
        focusPolicy: Qt.TabFocus
        Accessible.name: root.name
        Accessible.description: root.valueText
        onMoved: root.moved(value)

        background: Rectangle {
            y: Math.round((slider.height - height) / 2)
            width: slider.width
            height: 4
            radius: 2
            color: Theme.color.bg3

            Rectangle {
                x: slider.mirrored ? parent.width - width : 0
                width: slider.position * parent.width
                height: 4
                radius: 2
                color: root.enabled ? Theme.color.accent : Theme.color.line2
            }
        }
        handle: Rectangle {
            x: slider.visualPosition * (slider.width - 18) + (18 - width) / 2
            y: (slider.height - height) / 2
            width: root.lit && root.enabled ? 20 : 18
            height: width
            radius: width / 2
            color: !root.enabled ? Theme.color.bg3
                 : Theme.isDark ? Theme.color.text1 : Theme.color.accent
            FocusRing { shown: root.ringed; corner: parent.radius }
        }
    }
}
