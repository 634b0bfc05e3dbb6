// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The whole dock on its screen: the tab at the edge, and the panel of the open workspace beside
// it. What is physical, such as the edge, does not mirror; what is inside does.
FocusScope {
    id: root

    property point origin: Qt.point(0, 0) // of the window, on the screen
    property bool hasShadow: true
    property string view                  // the page of the panel to begin with

    // Whether there is still something of it to be seen.
    readonly property bool isPanelDrawn: panel.opacity > 0
    readonly property bool isTabDrawn: tab.opacity > 0

    signal placeWanted

    onIsPanelDrawnChanged: placeWanted()
    onIsTabDrawnChanged: placeWanted()

    function focusTab() {
        tab.focusSlot();
    }
    function focusPanel() {
        panel.focusContent();
    }
    function leave() {
        if (!panel.back()) {
            App.dock.closeWanted();
        }
    }

    implicitWidth: App.dock.screenSize.width
    implicitHeight: App.dock.screenSize.height
    focus: true
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Dock")
    Keys.onEscapePressed: leave()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_F6 && App.dock.isOpen;
        if (event.accepted && tab.activeFocus) {
            focusPanel();
        } else if (event.accepted) {
            focusTab();
        }
    }

    DockTab {
        id: tab

        x: App.dock.tab.x - root.origin.x
        y: App.dock.tab.y - root.origin.y
        width: App.dock.tab.width
        height: App.dock.tab.height
        hasShadow: root.hasShadow
        opacity: App.dock.isTabShown ? 1 : 0
        visible: opacity > 0
        focus: !App.dock.isOpen
        onPanelWanted: root.focusPanel()
        Behavior on opacity {
            NumberAnimation { duration: Theme.reducedMotion ? 100 : Theme.motion.fade }
        }
    }
    DockPanel {
        id: panel

        x: App.dock.panel.x - root.origin.x
        y: App.dock.panel.y - root.origin.y
        width: App.dock.panel.width
        height: App.dock.panel.height
        hasShadow: root.hasShadow
        page: root.view
        focus: App.dock.isOpen
        onCarried: (itemId, at) => {
            const workspace = tab.workspaceAt(tab.mapFromItem(null, at));
            if (workspace >= 0 && workspace !== App.dock.current) {
                App.dock.moveItemTo(itemId, workspace);
            }
        }
    }
}
