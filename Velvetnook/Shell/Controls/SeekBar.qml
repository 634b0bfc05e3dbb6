// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A value as a thin bar that can be taken hold of. A knob shows under the pointer and for who
// comes by keyboard.
Item {
    id: root

    property real from: 0
    property real to: 1
    property real step: (to - from) / 20
    property real value: from
    property real thickness: 4
    property color fill: Theme.color.accent
    property color track: Theme.color.bg3
    property string name
    property string valueText // for a screen reader
    property bool live: true  // tells while it is moved, not only where it was let go
    // What media have to do with does not turn with the language.
    property bool turns: true

    signal moved(real value)

    implicitWidth: 168
    implicitHeight: 22

    T.Slider {
        id: slider

        readonly property bool isHeld: hovered || pressed || visualFocus

        anchors.fill: parent
        LayoutMirroring.enabled: root.turns && root.LayoutMirroring.enabled
        enabled: root.enabled
        from: root.from
        to: Math.max(root.to, root.from + 0.000001)
        stepSize: root.step
        snapMode: T.Slider.NoSnap
        value: root.value
        live: true
        hoverEnabled: true
        wheelEnabled: true
        focusPolicy: Qt.TabFocus
        Accessible.name: root.name
        Accessible.description: root.valueText
        onMoved: if (root.live || !pressed) { root.moved(value); }
        onPressedChanged: {
            if (!pressed) {
                if (!root.live) {
                    root.moved(value);
                }
                value = Qt.binding(() => root.value);
            }
        }

        background: Rectangle {
            y: Math.round((slider.height - height) / 2)
            width: slider.width
            height: root.thickness
            radius: height / 2
            color: root.track

            Rectangle {
                x: slider.mirrored ? parent.width - width : 0
                width: slider.position * parent.width
                height: parent.height
                radius: height / 2
                color: root.enabled ? root.fill : Theme.color.line2
            }
        }
        handle: Rectangle {
            visible: root.enabled && slider.isHeld
            x: slider.visualPosition * (slider.width - width)
            y: (slider.height - height) / 2
            width: 12
            height: 12
            radius: 6
            color: Theme.isDark ? Theme.color.text1 : Theme.color.accent
            FocusRing { shown: slider.visualFocus; corner: 6 }
        }
    }
}
