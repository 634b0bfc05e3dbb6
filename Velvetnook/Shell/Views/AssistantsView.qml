// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Coding assistants: what is left of their limits, who works and who waits. The logs are read
// only while this can be seen.
FocusScope {
    id: root

    readonly property var model: App.assistants
    readonly property var connections: model.connections
    readonly property bool isSeen: visible && App.panel.isOpen
    readonly property string footerText: connections.isOpen
        ? qsTr("What is written or said is never passed on.") : model.footer
    readonly property string footerLink: connections.isOpen ? "" : qsTr("Connections…")
    readonly property var footerKeys: connections.isOpen ? [{key: qsTr("Esc"), text: qsTr("back")}] : []
    readonly property Item mainItem: page.item

    property bool isWatching: false
    property bool isTurning: false

    signal footerLinkClicked

    function watch(wanted) {
        if (wanted !== isWatching) {
            isWatching = wanted;
            wanted ? model.enter() : model.leave();
        }
    }

    onFooterLinkClicked: {
        isTurning = true; // the link, which had the focus, goes
        connections.open();
    }
    onIsSeenChanged: watch(isSeen)
    Component.onCompleted: watch(isSeen)
    Component.onDestruction: watch(false)

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Assistants")
    Keys.onEscapePressed: event => {
        event.accepted = connections.isOpen;
        if (connections.tool !== "") {
            connections.cancel();
        } else {
            connections.close();
        }
    }

    Loader {
        id: page

        anchors.fill: parent
        focus: true
        sourceComponent: root.connections.isOpen
            ? (root.connections.tool === "" ? connectionPage : changePage)
            : root.model.availability === "ready" ? activity : absent
        // The page that was left had the focus.
        onLoaded: {
            item.focus = true;
            if (root.activeFocus || root.isTurning) {
                root.isTurning = false;
                item.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }
    Component {
        id: activity

        AssistantActivityPage {}
    }
    Component {
        id: connectionPage

        AssistantConnectionsPage {
            onBack: root.connections.close()
        }
    }
    Component {
        id: changePage

        AssistantChangePage {}
    }
    Component {
        id: absent

        AvailabilityView {
            readonly property bool isLoading: availability === "loading"

            availability: root.model.availability
            iconName: isLoading ? "" : "claude"
            message: isLoading ? qsTr("Reading the logs…")
                               : qsTr("No logs of coding assistants this week")
            note: isLoading ? "" : qsTr("Claude Code and Codex are read from their own logs. Claude Code and Cursor can be connected.")
            primaryText: isLoading ? "" : qsTr("Connect…")
            onPrimary: root.connections.open()
        }
    }
}
