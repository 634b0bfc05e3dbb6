// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The calendar: a month, and the chosen day with what is planned on it.
FocusScope {
    id: root

    readonly property QtObject model: App.calendar
    readonly property Item mainItem: month
    readonly property string footerText: model.footer
    readonly property var footerKeys: [{key: "← →", text: qsTr("day")},
                                       {key: "T", text: qsTr("today")},
                                       {key: qsTr("Enter"), text: qsTr("open event")}]

    property string side: "agenda" // or "event", "sources"

    function leave() {
        const was = side;
        side = "agenda";
        if (was === "event") {
            agenda.enter();
        } else {
            month.forceActiveFocus(Qt.TabFocusReason);
        }
    }
    function showSources() {
        side = "sources";
        sources.item.begin();
    }

    implicitWidth: 600
    implicitHeight: 220
    Keys.onPressed: event => {
        if (side === "agenda" && letters.keyOf(event) === Qt.Key_C
                && event.modifiers === Qt.NoModifier) {
            event.accepted = true;
            showSources();
        }
    }
    Binding {
        target: root.model
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    Component.onDestruction: model.isShown = false

    KeyLetters { id: letters }
    CalendarMonth {
        id: month

        anchors.left: parent.left
        width: 260
        height: parent.height
        focus: true
        onEnterWanted: agenda.enter()
    }
    Item {
        anchors.right: parent.right
        width: 312
        height: parent.height

        CalendarAgenda {
            id: agenda

            anchors.fill: parent
            visible: root.side === "agenda"
            onSourcesWanted: root.showSources()
            onLeaveWanted: month.forceActiveFocus(Qt.TabFocusReason)
            onEventWanted: event => {
                root.side = "event";
                detail.show(event);
            }
        }
        CalendarEventDetail {
            id: detail

            anchors.fill: parent
            visible: root.side === "event"
            onLeaveWanted: root.leave()
        }
        Loader {
            id: sources

            anchors.fill: parent
            source: root.side === "sources" ? "CalendarSources.qml" : ""
        }
        Connections {
            target: sources.item
            function onLeaveWanted() { root.leave(); }
        }
        DropArea {
            anchors.fill: parent
            onDropped: event => {
                if (event.hasUrls) {
                    event.accept(Qt.CopyAction);
                    root.showSources();
                    root.model.addSourceUrl(event.urls[0]);
                }
            }
        }
    }
}
