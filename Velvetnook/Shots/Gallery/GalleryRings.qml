// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

Grid {
    columns: 3
    padding: 20
    spacing: 30

    Repeater {
        model: [{c: 21, t: 33}, {c: 21, t: 33, p: true}, {c: 33, t: 33}, {c: 64, t: 100}, {c: 440, t: 1000}, {c: 147, t: 0}, {c: 0, t: 7}]
        delegate: BeadRing {
            id: ring

            required property var modelData

            count: modelData.c
            target: modelData.t
            paused: modelData.p ?? false
            discDiameter: 160
            Column {
                anchors.centerIn: parent
                Digits {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: App.format.number(ring.count)
                    color: ring.paused ? Theme.color.text3 : Theme.color.text1
                }
                Txt {
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: "of 33"
                    color: Theme.color.text2
                }
            }
        }
    }
    ProgressRing {
        diameter: 168
        value: 0.418
        Digits { anchors.centerIn: parent; text: "14:32"; role: "numeralLarge" }
    }
    BeadRing { diameter: 76; count: 21; target: 33 }
}
