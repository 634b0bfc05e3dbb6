// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The first steps: five pages, each to be read, used or left out.
Rectangle {
    id: root

    property bool framed: true // draws the window's own edge

    readonly property QtObject model: App.onboarding
    readonly property var files: ["OnboardingWelcome", "OnboardingPhrase", "OnboardingPlace",
                                  "OnboardingReminders", "OnboardingDone"]
    readonly property var leaveWords: ["", qsTr("Skip"), qsTr("Not now"), qsTr("Skip"), ""]
    readonly property bool isLast: model.step === model.stepCount - 1

    objectName: "surface"
    implicitWidth: 700
    implicitHeight: 436
    radius: framed ? Theme.radius.window : 0
    color: Theme.color.bg0
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    focus: true
    Keys.onEscapePressed: model.finish()
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Welcome to Velvetnook")
    Component.onCompleted: next.forceActiveFocus()
    // Closed by the desktop, they were seen as well.
    Window.onVisibilityChanged: {
        if (Window.visibility === Window.Hidden) {
            model.finish();
        }
    }

    MouseArea {
        width: parent.width
        height: 60
        onPressed: root.Window.window.startSystemMove()
    }
    StepDots {
        anchors.left: parent.left
        anchors.leftMargin: 44
        y: 26
        step: root.model.step
        count: root.model.stepCount
    }
    GhostButton {
        visible: text !== ""
        anchors.right: parent.right
        anchors.rightMargin: 33
        y: 15
        small: true
        text: root.leaveWords[root.model.step]
        ink: Theme.color.text3
        onClicked: root.model.next()
    }
    Loader {
        id: page

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: 44
        anchors.rightMargin: 44
        y: 60
        height: parent.height - 60 - 76
        source: "../Views/" + root.files[root.model.step] + ".qml"
    }
    GhostButton {
        visible: root.model.step > 0
        anchors.left: parent.left
        anchors.leftMargin: 30
        y: parent.height - 61
        text: qsTr("Back")
        onClicked: root.model.back()
    }
    PrimaryButton {
        id: next

        anchors.right: parent.right
        anchors.rightMargin: 44
        y: parent.height - 63
        implicitHeight: 40
        horizontalPadding: 22
        text: root.model.step === 0 ? qsTr("Begin")
            : root.isLast ? qsTr("Open Velvetnook") : qsTr("Continue")
        onClicked: {
            const opens = root.isLast;
            root.model.next();
            if (opens) {
                opening.start();
            }
        }
    }
    // When this window goes, the desktop hands the keyboard on; a panel that had taken it
    // before would lose it, and close.
    Timer {
        id: opening

        interval: 300
        onTriggered: {
            App.panel.openTool("dhikr");
            App.panel.openWanted(true);
        }
    }
    Rectangle {
        visible: root.framed
        anchors.fill: parent
        radius: root.radius
        color: "transparent"
        border.width: 1
        border.color: Theme.color.line
    }
}
