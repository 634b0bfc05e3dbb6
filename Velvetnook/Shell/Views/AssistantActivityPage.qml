// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// A card for each limit, and a row for each session that matters.
ScrollBody {
    id: root

    readonly property int columns: Math.max(2, Math.min(3, cards.count))

    contentHeight: content.height
    activeFocusOnTab: interactive
    Keys.onUpPressed: contentY = Math.max(0, contentY - 36)
    Keys.onDownPressed: contentY = Math.max(0, Math.min(contentHeight - height, contentY + 36))

    Column {
        id: content

        width: root.width
        spacing: 8

        Grid {
            width: parent.width
            columns: root.columns
            columnSpacing: 10
            rowSpacing: 10

            Repeater {
                id: cards

                model: App.assistants.cards
                delegate: AssistantCard {
                    required property var modelData

                    width: (root.width - 10 * (root.columns - 1)) / root.columns
                    card: modelData
                }
            }
        }
        Column {
            width: parent.width

            Repeater {
                model: App.assistants.sessions
                delegate: AssistantRow {
                    required property var modelData

                    width: root.width
                    session: modelData
                }
            }
        }
    }
}
