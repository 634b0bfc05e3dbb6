// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What is planned on the chosen day.
FocusScope {
    id: root

    readonly property QtObject model: App.calendar
    readonly property bool hasEvents: model.availability === "ready"

    signal sourcesWanted
    signal leaveWanted
    signal eventWanted(var event)

    function enter() {
        if (hasEvents) {
            rows.currentIndex = 0;
            rows.forceActiveFocus(Qt.TabFocusReason);
        } else if (model.availability === "unconfigured") {
            sourcesWanted();
        }
    }

    Txt {
        anchors.left: parent.left
        width: Math.max(120, parent.width - islamic.implicitWidth - 46)
        height: 30
        role: "strong"
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        text: root.model.date
    }
    Txt {
        id: islamic

        anchors.right: more.left
        anchors.rightMargin: 4
        height: 30
        role: "note"
        verticalAlignment: Text.AlignVCenter
        color: Theme.color.text3
        text: root.model.islamicDate
    }
    IconButton {
        id: more

        anchors.right: parent.right
        y: 1
        size: 28
        iconSize: 16
        iconName: "more"
        name: qsTr("Calendars")
        keyHint: "C"
        onClicked: root.sourcesWanted()
    }
    ListView {
        id: rows

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 36
        anchors.bottom: warning.visible ? warning.top : parent.bottom
        anchors.bottomMargin: warning.visible ? 10 : 0
        visible: root.hasEvents
        activeFocusOnTab: true
        clip: contentHeight > height
        spacing: 6
        boundsBehavior: Flickable.StopAtBounds
        model: root.model.events
        Keys.onReturnPressed: if (currentItem) { root.eventWanted(currentItem); }
        Keys.onEnterPressed: if (currentItem) { root.eventWanted(currentItem); }
        Keys.onEscapePressed: root.leaveWanted()
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Events")

        delegate: CalendarEvent {
            width: ListView.view.width
            timeWidth: root.model.isTwelveHours ? 58 : 38
            selected: ListView.isCurrentItem && rows.activeFocus
            onClicked: {
                rows.currentIndex = index;
                root.eventWanted(this);
            }
        }
    }
    AvailabilityView {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.topMargin: 30
        anchors.bottom: warning.visible ? warning.top : parent.bottom
        visible: !root.hasEvents
        availability: root.model.availability
        iconName: ["error", "loading"].includes(availability) ? "" : "calendar"
        message: root.model.message
        note: availability === "unconfigured"
              ? qsTr("Add an iCalendar file, or the folder that your calendar program keeps.") : ""
        primaryText: availability === "unconfigured" ? qsTr("Add a calendar")
                   : availability === "error" ? qsTr("Try again") : ""
        onPrimary: {
            if (availability === "unconfigured") {
                root.sourcesWanted();
            } else {
                root.model.readAgain();
            }
        }
    }
    FooterLink {
        id: warning

        anchors.left: parent.left
        anchors.bottom: parent.bottom
        visible: text !== ""
        iconName: "alert"
        text: root.model.problem
        onClicked: root.sourcesWanted()
    }
}
