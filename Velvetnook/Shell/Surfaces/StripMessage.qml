// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The short message of the strip, moved once in the way it was written with. One that is longer
// than its room passes through it.
Item {
    id: root

    property string text
    property string way // scroll, bounce, wave, sparkle, pulse or rainbow
    property color color: Theme.onStrip.text1

    readonly property real overflow: Math.max(0, label.implicitWidth - width)
    readonly property bool moves: !Theme.reducedMotion && visible
    readonly property int amplitude: 3

    function begin() {
        motion.stop();
        label.reset();
        if (root.moves) {
            motion.start();
        }
    }

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    clip: overflow > 0
    Component.onCompleted: begin()

    Txt {
        id: label

        property real lift: 0
        property real slide: 0
        property real swell: 1
        property int hue: -1

        readonly property list<color> hues: [Theme.color.accent, "#9CC4DC", "#DCC28C", "#E3AEAA",
                                             "#BDB6EA"]

        function reset() {
            lift = 0;
            slide = 0;
            swell = 1;
            hue = -1;
            opacity = 1;
        }

        x: slide
        y: (root.height - height) / 2 + lift
        width: root.overflow > 0 && root.moves ? implicitWidth : root.width
        scale: swell
        role: "strong"
        text: root.text
        color: root.way !== "rainbow" ? root.color
             : Theme.reducedMotion ? Theme.onStrip.accent
             : hue < 0 ? root.color : hues[hue]
        Behavior on color { enabled: root.moves; ColorAnimation { duration: 400 } }
    }

    SequentialAnimation {
        id: motion

        ParallelAnimation {
            NumberAnimation { target: label; property: "opacity"; from: 0; to: 1; duration: Theme.motion.fade }
            NumberAnimation {
                target: label
                property: "slide"
                from: root.way === "scroll" ? root.amplitude : 0
                to: 0
                duration: Theme.motion.open
            }
        }
        ParallelAnimation {
            NumberAnimation { target: label; property: "slide"; to: -root.overflow; duration: root.overflow > 0 ? 2200 : 0 }
            SequentialAnimation {
                loops: root.way === "bounce" || root.way === "wave" ? 2 : 0
                NumberAnimation { target: label; property: "lift"; to: -root.amplitude; duration: 200; easing.type: Easing.OutQuad }
                NumberAnimation {
                    target: label
                    property: "lift"
                    to: root.way === "wave" ? root.amplitude : 0
                    duration: 300
                    easing.type: root.way === "wave" ? Easing.InOutSine : Easing.OutBounce
                }
                NumberAnimation { target: label; property: "lift"; to: 0; duration: 200; easing.type: Easing.InOutSine }
            }
            SequentialAnimation {
                loops: root.way === "pulse" ? 2 : 0
                NumberAnimation { target: label; property: "swell"; to: 1 + root.amplitude / 100; duration: 350; easing.type: Easing.InOutSine }
                NumberAnimation { target: label; property: "swell"; to: 1; duration: 350; easing.type: Easing.InOutSine }
            }
            SequentialAnimation {
                loops: root.way === "sparkle" ? 3 : 0
                NumberAnimation { target: label; property: "opacity"; to: 0.62; duration: 220; easing.type: Easing.InOutSine }
                NumberAnimation { target: label; property: "opacity"; to: 1; duration: 220; easing.type: Easing.InOutSine }
            }
            SequentialAnimation {
                loops: root.way === "rainbow" ? 1 : 0
                NumberAnimation { target: label; property: "hue"; from: 0; to: 4; duration: 2000 }
                PropertyAction { target: label; property: "hue"; value: -1 }
            }
        }
    }
    Connections {
        target: App.strip
        function onMessageBegan() { root.begin(); }
    }
}
