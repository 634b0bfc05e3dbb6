// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Shell

// One value out of a list that drops down, as a small chip.
Chip {
    id: root

    property var options: [] // [{value, label}]
    property var value
    property string name

    signal valueChosen(var value)

    readonly property var current: options.find(option => option.value === value)

    small: true
    iconName: "down"
    iconSize: 13
    iconTrails: true
    text: current ? current.label : ""
    Accessible.name: name + ", " + text
    onClicked: list.popup(0, height + 6)

    PopupMenu {
        id: list

        items: root.options.map(option => ({text: option.label, checked: option.value === root.value}))
        onChosen: index => root.valueChosen(root.options[index].value)
    }
}
