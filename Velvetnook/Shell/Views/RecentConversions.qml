// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The last conversions, as many as fit on the line.
Row {
    id: root

    visible: App.units.recent.length > 0
    spacing: 8
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Recent")

    Txt {
        id: label

        anchors.verticalCenter: parent.verticalCenter
        role: "label"
        color: Theme.color.text3
        text: qsTr("Recent")
    }
    Repeater {
        model: App.units.recent
        delegate: Chip {
            required property string modelData
            required property int index

            // Where it ends, from the line's beginning in either direction.
            readonly property real end: root.LayoutMirroring.enabled ? root.width - x : x + width

            small: true
            text: modelData
            opacity: end <= root.width ? 1 : 0
            enabled: opacity > 0
            onClicked: App.units.recall(index)
        }
    }
}
