// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The figures of the user's own accounts at a payment and an analytics provider.
FocusScope {
    id: root

    readonly property QtObject model: App.insights
    readonly property Component footerContent: page === "" && model.hasReport ? footer : null
    readonly property Item mainItem: body.item
    property string page: "" // or connect

    KeyLetters { id: letters }

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: App.panel.title
    Component.onCompleted: model.provider = App.panel.tool === "analytics" ? "datafast" : "stripe"
    Component.onDestruction: App.insights.isShown = false
    Keys.onEscapePressed: event => {
        event.accepted = page !== "";
        page = "";
    }
    Keys.onPressed: event => {
        if (page === "" && event.modifiers === Qt.NoModifier
                && letters.keyOf(event) === Qt.Key_R && !letters.isHeld(event)) {
            event.accepted = true;
            model.refresh();
        }
    }

    Binding {
        target: App.insights
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    Connections {
        target: App.insights
        function onConnected() {
            root.page = "";
            App.panel.showMessage(qsTr("The key is in the keyring."));
        }
        function onDisconnected() {
            root.page = "";
            App.panel.showMessage(qsTr("The key was removed from the keyring."));
        }
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
        sourceComponent: root.page === "connect" ? connection
                       : root.model.hasReport && root.model.availability !== "empty" ? report
                       : missing
    }
    Component {
        id: report

        InsightReport {}
    }
    Component {
        id: connection

        InsightConnection {
            onDone: root.page = ""
        }
    }
    Component {
        id: missing

        InsightMissing {
            onConnectWanted: root.page = "connect"
        }
    }
    Component {
        id: footer

        FreshnessFooter {
            text: root.model.footer
            isStale: root.model.availability === "stale"
            source: root.model.online
            linkIcon: root.model.canRefresh ? "refresh" : ""
            linkText: root.model.canRefresh ? qsTr("Refresh") : ""
            secondText: qsTr("Connections…")
            onLinkClicked: root.model.refresh()
            onSecondClicked: root.page = "connect"
        }
    }
}
