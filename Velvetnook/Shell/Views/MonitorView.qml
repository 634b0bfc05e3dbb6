// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The machine: four figures and who uses it; behind them the processes, what was recorded and
// everything else that the machine tells.
Item {
    id: root

    readonly property bool isReady: App.monitor.availability === "ready"
    readonly property bool isSeen: visible && Window.visibility !== Window.Hidden
    readonly property Item mainItem: pages.item ? pages.item.mainItem ?? pages.item : null
    readonly property string page: App.monitor.page
    readonly property Component footerContent: foot
    readonly property var sources: ({overview: "MonitorOverview.qml", app: "MonitorAppPage.qml",
                                     chart: "MonitorChartPage.qml", machine: "MonitorMachinePage.qml",
                                     mixer: "MonitorMixerPage.qml",
                                     options: "MonitorOptionsPage.qml"})

    function exportImage() {
        root.grabToImage(picture => App.monitor.saveImage(picture.image, Theme.color.bg0,
                                                          App.monitor.freeImageFile()));
    }

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Monitor")
    Keys.onPressed: event => {
        const isBack = event.key === Qt.Key_Escape || event.key === Qt.Key_Backspace;
        if (isBack && root.page !== "overview") {
            App.monitor.showPage("overview");
            event.accepted = true;
        }
    }
    Component.onDestruction: App.monitor.watched = false
    onPageChanged: Qt.callLater(() => {
        if (root.activeFocus && root.mainItem) {
            root.mainItem.forceActiveFocus(Qt.OtherFocusReason);
        }
    })

    Binding {
        target: App.monitor
        property: "watched"
        value: root.isSeen
    }
    Loader {
        id: pages

        anchors.fill: parent
        visible: root.isReady
        focus: true
        source: root.sources[root.page] ?? ""
    }
    AvailabilityView {
        visible: !root.isReady
        anchors.fill: parent
        availability: App.monitor.availability
        iconName: availability === "error" ? "stats" : ""
        message: availability === "error" ? qsTr("Nothing can be sampled here.")
                                          : qsTr("Taking the first sample…")
    }
    AskDialog {
        id: dialog

        title: App.monitor.question
        body: App.monitor.questionBody
        dangerous: App.monitor.questionKills
        acceptText: App.monitor.questionVerb
        onAccepted: App.monitor.answer(true)
        onRejected: App.monitor.answer(false)
    }
    Connections {
        target: App.monitor
        function onQuestionChanged() {
            if (App.monitor.question !== "" && !dialog.visible) {
                dialog.open();
            }
        }
    }
    Component {
        id: foot

        MonitorFoot { onExportWanted: root.exportImage() }
    }
}
