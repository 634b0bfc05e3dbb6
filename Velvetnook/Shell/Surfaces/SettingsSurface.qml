// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The settings: the pages at the leading side, the chosen one beside them. A choice is kept at
// once; there is nothing to save.
Rectangle {
    id: root

    property string view // the page to begin with
    property bool framed: true // draws the window's own title and edge

    signal closeWanted

    readonly property var files: ({general: "SettingsGeneral", appearance: "SettingsAppearance",
                                   notch: "SettingsNotch", dock: "SettingsDock",
                                   shortcuts: "SettingsShortcuts",
                                   reminders: "SettingsReminders", prayer: "SettingsPrayer",
                                   tools: "SettingsTools", clipboard: "SettingsClipboard",
                                   data: "SettingsData",
                                   about: "SettingsAbout"})

    objectName: "surface"
    implicitWidth: 900
    implicitHeight: 640
    radius: framed ? Theme.radius.window : 0
    color: Theme.color.bg0
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: root.closeWanted()
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Velvetnook Settings")
    Component.onCompleted: {
        if (view !== "") {
            App.settings.page = view;
        }
    }
    Window.onVisibilityChanged: {
        if (Window.visibility !== Window.Hidden) {
            navigation.begin();
        }
    }

    SettingsTitleBar {
        id: bar

        width: parent.width
        visible: root.framed
        height: root.framed ? 48 : 16
        onCloseWanted: root.closeWanted()
    }
    SettingsNavigation {
        id: navigation

        anchors.left: parent.left
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: 196
    }
    Txt {
        id: title

        anchors.left: navigation.right
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 28
        anchors.top: bar.bottom
        anchors.topMargin: 2
        role: "title"
        text: App.settings.title
        Accessible.role: Accessible.Heading
    }
    ScrollBody {
        id: scroll

        anchors.left: navigation.right
        anchors.right: parent.right
        anchors.top: title.bottom
        anchors.topMargin: 14
        anchors.bottom: refusal.visible ? refusal.top : parent.bottom
        contentHeight: page.height + 24

        Loader {
            id: page

            x: root.LayoutMirroring.enabled ? 24 : 14
            width: scroll.width - 38
            source: "../Views/" + root.files[App.settings.page] + ".qml"
            onLoaded: scroll.contentY = 0
        }
    }
    FieldError {
        id: refusal

        visible: text !== ""
        anchors.left: navigation.right
        anchors.leftMargin: 18
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 12
        text: App.settings.refusal
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
