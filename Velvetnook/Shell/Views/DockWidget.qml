// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The widget of one tool; a tool that has none of its own is named and said to be for.
Loader {
    id: root

    required property var modelData

    readonly property var files: ({stats: "DockStatsWidget", weather: "DockWeatherWidget",
                                   "screen-time": "DockTimeWidget", claude: "DockClaudeWidget"})

    function show(file) {
        setSource(file + ".qml", {tool: modelData.tool, title: modelData.title,
                                  summary: modelData.summary, iconName: modelData.icon});
    }

    height: item ? item.implicitHeight : 0
    Component.onCompleted: show(files[modelData.tool] ?? "DockPlainWidget")
    onStatusChanged: {
        if (status === Loader.Error) {
            show("DockPlainWidget"); // rather than nothing
        }
    }
}
