// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The keys that work over every application, and a recorder for others.
SettingsGroup {
    id: root

    readonly property QtObject page: App.settings.shortcuts

    title: qsTr("From anywhere")
    Component.onDestruction: page.cancel()
    onVisibleChanged: if (!visible) { page.cancel(); }

    Repeater {
        model: root.page.rows
        delegate: ShortcutRow {
            page: root.page
        }
    }
    SettingsRow {
        visible: root.page.addable.length > 0
        title: qsTr("A key for a tool")
        note: qsTr("It opens the panel with that tool.")
        Picker {
            name: qsTr("Tool")
            options: [{value: "", label: qsTr("Choose a tool")}].concat(root.page.addable)
            value: ""
            onChosen: value => root.page.record(value)
        }
    }
}
