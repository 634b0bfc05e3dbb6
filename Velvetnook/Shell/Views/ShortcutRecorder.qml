// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Takes every key that is pressed while it has the focus.
Rectangle {
    id: root

    signal pressed(int key, int modifiers, int scanCode)
    signal abandoned

    implicitWidth: 150
    implicitHeight: 32
    radius: Theme.radius.row
    color: Theme.color.bg1
    border.width: Theme.outline
    border.color: Theme.color.accent
    Accessible.role: Accessible.EditableText
    Accessible.name: words.text
    Accessible.focusable: true
    Component.onCompleted: forceActiveFocus(Qt.OtherFocusReason)
    onActiveFocusChanged: if (!activeFocus) { abandoned(); }
    Keys.onShortcutOverride: event => event.accepted = true
    Keys.onPressed: event => {
        event.accepted = true;
        if (!event.isAutoRepeat) {
            root.pressed(event.key, event.modifiers, event.nativeScanCode);
        }
    }

    Txt {
        id: words

        anchors.centerIn: parent
        role: "label"
        color: Theme.color.text2
        text: qsTr("Press the keys…")
        Accessible.ignored: true
    }
}
