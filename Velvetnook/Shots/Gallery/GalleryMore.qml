// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

Column {
    id: root

    padding: 20
    spacing: 16

    Row {
        spacing: 20
        Column {
            width: 240
            ListRow { width: 240; title: "As-Salām"; arabic: "ٱلسَّلَامُ"; selected: true; trailingText: "5" }
            ListRow { width: 240; title: "Al-Malik"; arabic: "ٱلْمَلِكُ"; titleColor: Theme.color.text2 }
            ListRow { width: 240; title: "Focus"; note: "25 min · running"; iconName: "focus"; lit: true
                IconButton { size: 30; iconName: "pause"; name: "Pause"; filled: true }
            }
            ListRow { width: 240; title: "A title that is far too long for its row"; note: "note"; iconName: "drop"; ringed: true; trailingText: "12:40" }
            ListRow { width: 240; title: "Disabled"; enabled: false; iconName: "cup" }
        }
        Column {
            spacing: 10
            Card { width: 200; Column { Txt { text: "A card"; role: "heading" } Txt { text: "with a body"; color: Theme.color.text2 } } }
            Card { width: 200; selected: true; Txt { text: "Selected" } }
            Card { width: 200; interactive: true; lit: true; name: "Lit"; Txt { text: "Hover" } }
            Card { width: 200; interactive: true; ringed: true; name: "Ringed"; Txt { text: "Focus" } }
        }
        Column {
            spacing: 12
            KeyHints { keys: [{key: "Space", text: "count"}, {key: "Z", text: "undo"}, {key: "P", text: "pause"}] }
            TextPad { width: 240; hint: "Write here" }
            TextPad { width: 240; height: 90; text: "Tea, lemons, bread flour\nand a second line" }
            Hairline { width: 240 }
            Row {
                spacing: 8
                IconButton { size: 30; iconName: "star"; name: "Favourite" }
                IconButton { size: 30; iconName: "star"; iconFilled: true; ink: Theme.color.accent; name: "Favourite" }
                IconButton { iconName: "undo"; name: "Undo"; filled: true }
                Chip { iconName: "plus"; Accessible.name: "Add" }
            }
        }
    }
    SettingsGroup {
        width: 640
        title: "Try it"
        note: "What happens when it is time"
        SettingsRow { title: "Gentle reminders"; note: "A notification with the pinned phrase, inside the hours you choose."; Toggle { checked: true } }
        SettingsRow { title: "Every"; note: "1 to 1440 minutes"; Picker { options: [{value: 60, label: "60 minutes"}]; value: 60 } }
        SettingsRow { title: "Test notification"; SecondaryButton { small: true; text: "Send a preview" } }
    }
    Row {
        spacing: 40
        leftPadding: 20
        bottomPadding: 30
        Rectangle {
            width: 412; height: 180; color: "transparent"; objectName: "surface"
            AskDialog {
                id: ask
                title: "Start again from zero?"
                body: "Your 21 counts will not be kept in the history. Finish keeps them."
                acceptText: "Reset"; cancelText: "Keep counting"; extraText: "Finish instead"
                dangerous: true
                Component.onCompleted: open()
            }
        }
        Item {
            id: place
            width: 252; height: 180
            PopupMenu {
                id: menu
                parent: place
                width: 252
                items: [{text: "Focus until prayer…", iconName: "focus", checked: false}, {text: "Review prayer deadline…", iconName: "prayer", enabled: false}, {separator: true}, {text: "Settings…", iconName: "settings", key: "Ctrl ,"}, {text: "Chosen", checked: true}]
                modal: false
                focus: false
                Timer { running: true; interval: 1; onTriggered: menu.open() }
            }
        }
    }
}
