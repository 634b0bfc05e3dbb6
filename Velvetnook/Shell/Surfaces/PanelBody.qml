// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The view of the tool. A new one comes in from the side of its tab.
FocusScope {
    id: root

    readonly property Item shown: loader.item

    function takeFocus() {
        const wanted = shown ? (shown.mainItem ?? shown) : loader;
        wanted.forceActiveFocus(Qt.TabFocusReason);
    }
    function load() {
        if (App.panel.viewName === "") {
            loader.sourceComponent = notBuilt;
        } else {
            loader.setSource("../Views/" + App.panel.viewName + "View.qml");
        }
    }
    function arrive() {
        if (root.visible && shown) {
            motion.from = (Theme.reducedMotion ? 0 : 6) * App.panel.direction
                          * (LayoutMirroring.enabled ? -1 : 1);
            change.restart();
        }
    }

    Loader {
        id: loader

        width: parent.width
        height: parent.height
        focus: true
        onStatusChanged: {
            if (status === Loader.Error) {
                sourceComponent = broken;
            }
        }
        onLoaded: {
            item.focus = true;
            if (root.activeFocus && item.mainItem) {
                item.mainItem.forceActiveFocus(Qt.OtherFocusReason);
            } else if (item.mainItem) {
                item.mainItem.focus = true;
            }
            root.arrive();
        }
        Component.onCompleted: root.load()
    }
    ParallelAnimation {
        id: change

        NumberAnimation {
            target: loader
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.reducedMotion ? 100 : Theme.motion.tab
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.standard
        }
        NumberAnimation {
            id: motion

            target: loader
            property: "x"
            to: 0
            duration: Theme.motion.tab
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.standard
        }
    }
    Connections {
        target: App.panel
        function onToolChanged() { root.load(); }
    }
    Component {
        id: notBuilt

        AvailabilityView {
            availability: "unconfigured"
            iconName: App.panel.icon
            message: qsTr("%1 is not part of this version yet.").arg(App.panel.title)
            note: App.panel.summary
            secondaryText: qsTr("All tools")
            onSecondary: App.panel.showAllTools()
        }
    }
    Component {
        id: broken

        AvailabilityView {
            availability: "error"
            message: qsTr("This view could not be drawn.")
            note: qsTr("The reason is in the application's messages.")
        }
    }
}
