// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A few values side by side, one of them chosen. Arrows move among them.
Rectangle {
    id: root

    property var options: [] // [{value, label, iconName}]
    property var value
    property string name

    signal chosen(var value)

    function move(by) {
        const at = options.findIndex(option => option.value === value);
        const next = at + by;
        if (next >= 0 && next < options.length) {
            chosen(options[next].value);
            repeater.itemAt(next).forceActiveFocus(Qt.TabFocusReason);
        }
    }

    implicitWidth: row.implicitWidth + 6
    implicitHeight: 32
    radius: 10
    color: Theme.color.bg2
    Accessible.role: Accessible.Grouping
    Accessible.name: name

    Row {
        id: row

        x: 3
        y: 3

        Repeater {
            id: repeater

            model: root.options
            delegate: Segment {
                required property var modelData

                text: modelData.label
                iconName: modelData.iconName ?? ""
                chosen: modelData.value === root.value
                onClicked: root.chosen(modelData.value)
                Keys.onLeftPressed: root.move(LayoutMirroring.enabled ? 1 : -1)
                Keys.onRightPressed: root.move(LayoutMirroring.enabled ? -1 : 1)
            }
        }
    }
}
