// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Shell

// A field for a value that is kept elsewhere. It follows that value, but never over what is
// being typed or was refused; Escape goes back to it.
Field {
    id: root

    property string value

    signal finished(string text)

    function follow() {
        if (!activeFocus && error === "") {
            text = value;
        }
    }

    onValueChanged: follow()
    onErrorChanged: follow()
    Component.onCompleted: text = value
    onAccepted: finished(text)
    onActiveFocusChanged: {
        if (!activeFocus && text !== value) {
            finished(text);
            follow();
        }
    }
    Keys.onEscapePressed: event => {
        event.accepted = text !== value;
        text = value;
        finished(value);
    }
}
