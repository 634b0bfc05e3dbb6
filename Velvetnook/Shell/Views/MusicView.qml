// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What plays, in a player or in a tab of the browser, and the hand on it.
FocusScope {
    id: root

    readonly property QtObject model: App.music
    readonly property Item mainItem: body.item
    readonly property bool isTabPage: page === "tab"
    readonly property string footerText: isTabPage || model.availability === "ready"
                                         ? qsTr("Private windows are never read") : ""
    readonly property var footerKeys: isTabPage || model.availability !== "ready" ? []
        : [{key: qsTr("Space", "the key"), text: qsTr("play or pause")},
           {key: "←→", text: qsTr("seek %1 s").arg(App.format.number(5))}, {key: "M", text: qsTr("mute")}]
    property string page: ""

    function takeKey(key) {
        switch (key) {
        case Qt.Key_Space:
            model.playPause();
            return true;
        case Qt.Key_Left:
        case Qt.Key_Right:
            model.step(key === Qt.Key_Left ? -5 : 5);
            return true;
        case Qt.Key_Up:
        case Qt.Key_Down:
            model.setVolume(model.volume + (key === Qt.Key_Up ? 0.05 : -0.05));
            return true;
        case Qt.Key_M:
            model.toggleMute();
            return true;
        case Qt.Key_N:
            model.next();
            return true;
        case Qt.Key_B:
            model.previous();
            return true;
        }
        return false;
    }

    KeyLetters { id: letters }

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Music")
    Keys.onEscapePressed: event => {
        event.accepted = isTabPage;
        page = "";
    }
    Keys.onPressed: event => {
        const isPlain = (event.modifiers & ~Qt.KeypadModifier) === 0;
        event.accepted = !isTabPage && isPlain
                         && (letters.isHeld(event) || takeKey(letters.keyOf(event)));
    }
    Component.onDestruction: App.music.isShown = false

    Binding {
        target: App.music
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    Connections {
        target: App.music
        function onFailed(message) { App.panel.showMessage(message); }
    }
    Loader {
        id: body

        anchors.fill: parent
        focus: true
        onLoaded: {
            item.focus = true;
            if (root.activeFocus) {
                item.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
        sourceComponent: root.isTabPage ? tabPage
                       : root.model.availability === "ready" ? playing : nothing
    }
    Component {
        id: playing

        MusicPlayer {
            onTabsWanted: root.page = "tab"
        }
    }
    Component {
        id: tabPage

        MusicTabPage {
            onDone: root.page = ""
        }
    }
    Component {
        id: nothing

        AvailabilityView {
            availability: root.model.availability
            iconName: availability === "empty" ? "music" : ""
            message: root.model.message
            note: availability === "empty"
                  ? qsTr("What a player or a browser plays shows here by itself.") : ""
            primaryText: qsTr("Connect a browser tab…")
            onPrimary: root.page = "tab"
        }
    }
}
