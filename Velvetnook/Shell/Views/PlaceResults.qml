// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The cities that a search found.
Column {
    id: root

    // Not by `visible`, which is false while what it stands in is hidden.
    readonly property bool isFilled: rows.count > 0

    function enter() {
        if (rows.count > 0) {
            rows.itemAt(0).forceActiveFocus(Qt.TabFocusReason);
        }
    }
    function step(from, by) {
        const next = rows.itemAt(from + by);
        if (next) {
            next.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    visible: isFilled
    Accessible.role: Accessible.List
    Accessible.name: qsTr("Cities")

    Repeater {
        id: rows

        model: App.settings.place.found
        delegate: ListRow {
            required property var modelData
            required property int index

            width: root.width - root.leftPadding - root.rightPadding
            iconName: "place"
            title: modelData.title
            trailingText: modelData.note
            Keys.onUpPressed: root.step(index, -1)
            Keys.onDownPressed: root.step(index, 1)
            onClicked: App.settings.place.choose(index)
        }
    }
}
