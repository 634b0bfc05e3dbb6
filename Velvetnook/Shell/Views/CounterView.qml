// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The counter: the ring is the tap target; beside it the phrase, the target and what can be
// done with the session.
Item {
    id: root

    readonly property Item mainItem: tap
    readonly property string footerText: App.counter.footer
    readonly property var footerKeys: {
        if (App.counter.isPaused) {
            return [{key: "P", text: qsTr("resume")}, {key: "F", text: qsTr("finish")}];
        }
        if (App.counter.isReached) {
            return [{key: qsTr("Space"), text: qsTr("count on")},
                    {key: "F", text: qsTr("finish")}];
        }
        if (App.counter.target === 0) {
            return [{key: qsTr("Space"), text: qsTr("count")},
                    {key: "T", text: qsTr("set a target")}];
        }
        return [{key: qsTr("Space"), text: qsTr("count")}, {key: "Z", text: qsTr("undo")},
                {key: "P", text: qsTr("pause")}, {key: "F", text: qsTr("finish")}];
    }

    function askReset() {
        if (App.counter.isEmpty) {
            App.counter.reset(false);
        } else {
            App.counter.isAskingReset = true;
        }
    }
    function showQuestion() {
        if (App.counter.isAskingReset) {
            question.open();
        }
    }
    function turnPhrase(towardsEnd) {
        App.counter.selectNext(towardsEnd !== LayoutMirroring.enabled ? 1 : -1);
    }
    // Single letters, while nothing is typed. Says whether the key was one of them.
    function take(event) {
        const key = letters.keyOf(event);
        if (letters.isHeld(event)) {
            return true;
        }
        if (event.matches(StandardKey.Undo) || key === Qt.Key_Z) {
            App.counter.undo();
        } else if (key === Qt.Key_P) {
            App.counter.togglePause();
        } else if (key === Qt.Key_F) {
            App.counter.finish();
        } else if (key === Qt.Key_T) {
            targets.type();
        } else if (key === Qt.Key_R) {
            root.askReset();
        } else if (key === Qt.Key_H) {
            App.panel.openTool("history");
        } else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right) {
            root.turnPhrase(event.key === Qt.Key_Right);
        } else if (event.key === Qt.Key_Up || event.key === Qt.Key_Down) {
            phrase.scroll(event.key === Qt.Key_Down ? 40 : -40);
        } else {
            return tap.take(event);
        }
        return true;
    }

    KeyLetters { id: letters }

    implicitWidth: 600
    implicitHeight: 220
    Keys.onPressed: event => {
        const isPlain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier));
        if (!targets.isTyping && (isPlain || event.matches(StandardKey.Undo))) {
            event.accepted = root.take(event);
        }
    }

    CounterTap {
        id: tap

        anchors.left: parent.left
        width: 220
        height: 220
    }
    Item {
        anchors.right: parent.right
        width: parent.width - 246
        height: 220

        CounterPhrase {
            id: phrase

            width: parent.width
            height: 130
        }
        CounterTargets {
            id: targets

            y: 142
            width: parent.width
            onReleased: tap.forceActiveFocus()
        }
        CounterActions {
            visible: !(targets.isTyping && App.counter.targetError !== "")
            y: 184
            width: parent.width
            onResetWanted: root.askReset()
        }
    }
    AskDialog {
        id: question

        dangerous: true
        corner: Theme.radius.panel
        title: qsTr("Start again from zero?")
        body: App.counter.resetQuestion
        acceptText: qsTr("Reset")
        extraText: qsTr("Finish instead")
        cancelText: qsTr("Keep counting")
        onVisibleChanged: {
            if (!visible) {
                App.counter.isAskingReset = false;
            }
        }
        onAccepted: App.counter.reset(true)
        onExtra: App.counter.finish()
    }
    Connections {
        target: App.counter
        function onIsAskingResetChanged() { root.showQuestion(); }
    }
    Component.onCompleted: Qt.callLater(showQuestion)
}
