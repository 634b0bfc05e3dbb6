// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Shapes
import Velvetnook.Application
import Velvetnook.Shell

// The panel of the open workspace, with its callout toward the tab. Pages come over the items
// while something is added or named.
FocusScope {
    id: root

    property bool hasShadow: true
    property string page // "", or a page of its own
    property string itemId // that the page is about; empty: the workspace
    property string itemTitle

    readonly property string edge: App.dock.edge
    readonly property bool isBottom: edge === "bottom"
    readonly property int callout: 14

    signal carried(string itemId, point at) // out of the panel, in the window

    function focusContent() {
        loader.item?.takeFocus(Qt.TabFocusReason);
    }
    // One step back; false when there is none.
    function back() {
        if (page === "") {
            return false;
        }
        page = "";
        focusContent();
        return true;
    }

    readonly property var files: ({apps: "DockApps", tools: "DockTools", link: "DockLink",
                                   widgets: "DockWidgets", name: "DockName"})

    opacity: App.dock.isOpen ? 1 : 0
    visible: opacity > 0
    scale: App.dock.isOpen || Theme.reducedMotion ? 1 : 0.96
    transformOrigin: isBottom ? Item.Bottom : edge === "left" ? Item.Left : Item.Right
    Accessible.role: Accessible.Pane
    Accessible.name: App.dock.title
    onVisibleChanged: {
        if (!visible) {
            page = "";
        }
    }
    Behavior on opacity {
        NumberAnimation {
            duration: Theme.reducedMotion ? 100 : Theme.motion.dock
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.settle
        }
    }
    Behavior on scale {
        NumberAnimation {
            duration: Theme.reducedMotion ? 0 : Theme.motion.dock
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.settle
        }
    }

    Shape {
        x: root.isBottom ? Math.round(App.dock.pointerShare * root.width) - 14
         : root.edge === "left" ? 0 : root.width - 14
        y: root.isBottom ? root.height - 14
                         : Math.round(App.dock.pointerShare * root.height) - 14
        width: root.isBottom ? 28 : 14
        height: root.isBottom ? 14 : 28
        layer.enabled: GraphicsInfo.api !== GraphicsInfo.Software
        layer.samples: 4

        ShapePath {
            strokeWidth: -1
            fillColor: App.dock.isFrosted ? Qt.alpha(Theme.color.bg0, 0.94) : Theme.color.bg0
            PathSvg {
                path: root.isBottom ? "M0 0c6 0 8 2 10 5l3 7q1 1.5 2 0l3-7c2-3 4-5 10-5z"
                    : root.edge === "left"
                      ? "M14 0c0 6-2 8-5 10l-7 3q-1.5 1 0 2l7 3c3 2 5 4 5 10z"
                      : "M0 0C0 6 2 8 5 10l7 3q1.5 1 0 2l-7 3C2 20 0 22 0 28z"
            }
        }
    }
    FocusScope {
        id: body

        objectName: "surface"
        x: root.edge === "left" ? root.callout : 0
        width: root.width - (root.isBottom ? 0 : root.callout)
        height: root.height - (root.isBottom ? root.callout : 0)
        focus: true

        function dialogOpened() {
            App.dock.beginDialog();
        }
        function dialogClosed() {
            App.dock.endDialog();
        }

        DockGround {
            anchors.fill: parent
            hasShadow: root.hasShadow
        }
        MouseArea { anchors.fill: parent; acceptedButtons: Qt.AllButtons } // nothing falls through
        Loader {
            id: loader

            anchors.fill: parent
            anchors.margins: 16
            focus: true
            active: root.visible || App.dock.isOpen
            source: "../Views/" + (root.files[root.page] ?? "DockItemsPage") + ".qml"
            onLoaded: {
                if (root.page === "name") {
                    item.itemId = root.itemId;
                    item.title = root.itemId === "" ? App.dock.title : root.itemTitle;
                }
                item.takeFocus(Qt.OtherFocusReason);
            }
        }
        Connections {
            target: loader.item
            ignoreUnknownSignals: true
            function onPageWanted(page, itemId, title) {
                root.itemId = itemId;
                root.itemTitle = title;
                root.page = page;
            }
            function onDone() { root.back(); }
            function onCarried(itemId, at) { root.carried(itemId, at); }
        }
        DockMessage {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: 12
        }
    }
    Connections {
        target: App.dock
        function onWorkspacesChanged() {
            if (!App.dock.isOpen) {
                root.page = "";
            }
        }
    }
}
