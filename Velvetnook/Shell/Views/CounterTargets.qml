// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The targets that were used before, the open count, and the way to another. What is typed and
// refused stays as it is, with the reason under it.
FocusScope {
    id: root

    readonly property bool isTyping: App.counter.isEnteringTarget

    signal released // the focus is free

    function type() {
        App.counter.isEnteringTarget = true;
    }
    function leave() {
        App.counter.isEnteringTarget = false;
    }

    onIsTypingChanged: {
        if (isTyping) {
            field.text = "";
            field.forceActiveFocus(Qt.OtherFocusReason);
        } else {
            released();
        }
    }

    implicitHeight: isTyping ? field.implicitHeight : 30
    Keys.onEscapePressed: event => {
        event.accepted = isTyping;
        if (isTyping) {
            leave();
        }
    }

    Row {
        visible: !root.isTyping
        anchors.left: parent.left
        spacing: 6

        ListView {
            id: saved

            readonly property real room: root.width - open.width - more.width - 12

            width: contentWidth > 0 ? Math.min(contentWidth, room) : room
            height: 30
            orientation: ListView.Horizontal
            spacing: 6
            clip: contentWidth > width
            boundsBehavior: Flickable.StopAtBounds
            interactive: contentWidth > width
            model: App.counter.targets
            currentIndex: App.counter.chosenTarget
            highlightFollowsCurrentItem: false
            onCurrentIndexChanged: positionViewAtIndex(Math.max(0, currentIndex), ListView.Contain)
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Targets")
            delegate: Chip {
                required property int index
                required property var modelData

                text: modelData.label
                chosen: index === App.counter.chosenTarget
                Accessible.name: qsTr("Target %1").arg(text)
                onClicked: App.counter.setTarget(modelData.value)
                onActiveFocusChanged: {
                    if (activeFocus) {
                        saved.positionViewAtIndex(index, ListView.Contain);
                    }
                }
            }
        }
        Chip {
            id: open

            text: qsTr("Open", "a count without a target")
            chosen: App.counter.target === 0
            onClicked: App.counter.setTarget(0)
        }
        Chip {
            id: more

            iconName: "plus"
            Accessible.name: qsTr("Another target")
            onClicked: root.type()
        }
    }
    Row {
        id: entry

        visible: root.isTyping
        width: parent.width
        spacing: 8

        Field {
            id: field

            width: parent.width - set.width - cancel.width - 16
            hint: qsTr("Target")
            error: App.counter.targetError
            inputMethodHints: Qt.ImhDigitsOnly
            focus: true
            onEdited: App.counter.clearTargetError()
            onAccepted: App.counter.enterTarget(text)
        }
        PrimaryButton {
            id: set

            height: 34
            text: qsTr("Set", "@action:button a target")
            onClicked: App.counter.enterTarget(field.text)
        }
        GhostButton {
            id: cancel

            height: 34
            text: qsTr("Cancel")
            onClicked: root.leave()
        }
    }
}
