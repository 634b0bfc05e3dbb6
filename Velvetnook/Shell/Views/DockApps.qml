// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Adds an application: all that the desktop knows, by their names.
FocusScope {
    id: root

    signal done

    readonly property QtObject found: App.dock.applications

    function takeFocus(reason) {
        search.forceActiveFocus(reason);
    }
    function take(id) {
        App.dock.addApplication(id);
        done();
    }

    Component.onCompleted: App.dock.loadApplications()
    Component.onDestruction: found.forget()

    DockPageHead {
        id: head

        width: parent.width
        title: qsTr("Applications")
        onDone: root.done()
    }
    Field {
        id: search

        anchors.top: head.bottom
        anchors.topMargin: 10
        width: parent.width
        focus: true
        iconName: "search"
        hint: qsTr("Search applications")
        text: root.found.query
        onEdited: text => root.found.query = text
        Keys.onDownPressed: {
            list.currentIndex = 0;
            list.forceActiveFocus(Qt.TabFocusReason);
        }
        onAccepted: {
            if (list.count > 0) {
                root.take(list.itemAtIndex(0).applicationId);
            }
        }
    }
    ListView {
        id: list

        anchors.top: search.bottom
        anchors.topMargin: 8
        anchors.bottom: parent.bottom
        width: parent.width
        model: root.found
        clip: true
        reuseItems: true
        boundsBehavior: Flickable.StopAtBounds
        currentIndex: -1
        Accessible.role: Accessible.List
        Accessible.name: head.title
        delegate: DockChoice {
            required property int index
            required property string applicationId

            width: list.width
            onClicked: root.take(applicationId)
            Keys.onUpPressed: index > 0 ? list.decrementCurrentIndex() : root.takeFocus(Qt.TabFocusReason)
        }
    }
    AvailabilityView {
        visible: list.count === 0
        anchors.fill: list
        availability: root.found.availability === "ready" ? "empty" : root.found.availability
        iconName: "grid"
        message: root.found.availability === "loading" ? qsTr("Reading the applications…")
               : root.found.query !== "" ? qsTr("No application goes by this name")
               : qsTr("No applications were found")
        note: root.found.availability === "empty"
              ? qsTr("The desktop’s menus have none, or they cannot be read.") : ""
    }
}
