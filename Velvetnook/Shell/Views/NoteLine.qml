// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// One note of the list. It can be carried to another place.
ListRow {
    id: root

    required title
    required property int index
    required property string noteId
    required property string excerpt
    required property string when
    required property bool pinned
    required property bool scratchpad
    property bool movable: false

    signal moved(int lines)

    readonly property real carried: drag.active ? drag.translation.y : 0

    height: 42
    z: drag.active ? 1 : 0
    focusPolicy: Qt.NoFocus
    iconName: scratchpad ? "scratchpad" : pinned ? "pin" : "notes"
    titleColor: Theme.color.text2
    note: excerpt
    trailingText: when
    opacity: drag.active ? 0.85 : 1
    transform: Translate { y: root.carried }

    DragHandler {
        id: drag

        property real last: 0

        enabled: root.movable
        target: null
        xAxis.enabled: false
        onTranslationChanged: {
            if (active) {
                last = translation.y;
            }
        }
        onActiveChanged: {
            const lines = Math.round(last / (root.height + 4));
            if (!active && lines !== 0) {
                root.moved(lines);
            }
            last = 0;
        }
    }
}
