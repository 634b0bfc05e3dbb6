// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The open panel: tabs above, one view, and a footer that speaks.
FocusScope {
    id: root

    property string view         // the tool to begin with; empty: where the user was
    property bool hasFrame: true // the window draws its own, which grows out of the strip
    property bool hasKeys: visible

    function focusView() {
        body.takeFocus();
    }
    function leave() {
        if (App.panel.canGoBack) {
            App.panel.back();
        } else {
            App.panel.closeWanted();
        }
    }
    function moveArea() {
        if (header.activeFocus) {
            body.takeFocus();
        } else if (body.activeFocus && footer.canFocus) {
            footer.forceActiveFocus(Qt.TabFocusReason);
        } else {
            header.takeFocus();
        }
    }
    // A dialog over the panel holds it open.
    function dialogOpened() {
        App.panel.beginDialog();
    }
    function dialogClosed() {
        App.panel.endDialog();
    }

    objectName: "surface"
    implicitWidth: 640
    implicitHeight: 320
    focus: true
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: App.panel.title
    Component.onCompleted: {
        if (view !== "") {
            App.panel.openTool(view);
        }
    }
    Keys.onEscapePressed: leave()

    Loader {
        active: root.hasFrame
        anchors.fill: parent
        sourceComponent: PanelFrame {}
    }
    PanelHeader {
        id: header

        width: parent.width
        height: 48
    }
    PanelBody {
        id: body

        y: 52
        x: 20
        width: 600
        height: 220
        focus: true
    }
    PanelFooter {
        id: footer

        x: 20
        y: 284
        width: 600
        height: 36
        shown: body.shown
    }
    PanelKeys {
        enabled: root.hasKeys
        onAreaWanted: root.moveArea()
    }
}
