// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// How long which application was in front: a day or the week at the start, who took it at the
// end.
Item {
    id: root

    property bool showsOptions: false

    readonly property bool isReady: App.screenTime.availability === "ready"
    readonly property Item mainItem: showsOptions ? null : isReady ? summary.mainItem : null
    readonly property string footerText: App.screenTime.footer
    readonly property string footerLink: showsOptions ? qsTr("Back") : qsTr("Counting…")

    signal footerLinkClicked

    onFooterLinkClicked: showsOptions = !showsOptions
    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Screen time")
    Keys.onPressed: event => {
        const isBack = event.key === Qt.Key_Escape || event.key === Qt.Key_Backspace;
        if (isBack && root.showsOptions) {
            root.showsOptions = false;
            event.accepted = true;
        }
    }
    Component.onDestruction: App.screenTime.watched = false

    Binding {
        target: App.screenTime
        property: "watched"
        value: root.visible && root.Window.visibility !== Window.Hidden
    }
    ScreenTimeSummary {
        id: summary

        visible: root.isReady && !root.showsOptions
        anchors.left: parent.left
        width: 212
        height: parent.height
    }
    ScreenTimeApps {
        visible: root.isReady && !root.showsOptions
        anchors.left: summary.right
        anchors.leftMargin: 24
        anchors.right: parent.right
        height: parent.height
    }
    AvailabilityView {
        visible: !root.isReady && !root.showsOptions
        anchors.fill: parent
        availability: App.screenTime.availability
        iconName: availability === "error" ? "" : "screen-time"
        message: ({unconfigured: qsTr("Nothing is counted"), empty: qsTr("Nothing counted yet"),
                   error: App.screenTime.problem})[availability] ?? ""
        note: availability === "unconfigured"
              ? qsTr("How long which application is in front, known only to this computer.")
              : availability === "empty" ? qsTr("What is in front from now on is counted.") : ""
        primaryText: availability === "unconfigured" ? qsTr("Count from now on") : ""
        onPrimary: App.screenTime.isOn = true
    }
    Loader {
        anchors.fill: parent
        active: root.showsOptions
        source: active ? "ScreenTimeOptions.qml" : ""
    }
}
