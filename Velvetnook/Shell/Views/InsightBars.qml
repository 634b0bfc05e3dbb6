// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The period in bars, the present one full.
Item {
    id: root

    property color ink: Theme.color.accent

    readonly property var bars: App.insights.bars
    readonly property real pitch: bars.length > 0 ? (width + gap) / bars.length : 0
    readonly property real gap: bars.length > 30 ? 2 : bars.length > 20 ? 4 : 7.7

    Repeater {
        model: root.bars
        delegate: Rectangle {
            required property var modelData
            required property int index

            readonly property real start: index * root.pitch

            x: LayoutMirroring.enabled ? root.width - start - width : start
            y: root.height - height
            width: Math.min(root.pitch - root.gap, 24)
            height: Math.max(2, modelData.share * root.height)
            radius: Math.min(4, width / 2, height / 2)
            color: root.ink
            opacity: modelData.isLast ? 1 : 0.42
            Accessible.role: Accessible.StaticText
            Accessible.name: modelData.spoken
        }
    }
}
