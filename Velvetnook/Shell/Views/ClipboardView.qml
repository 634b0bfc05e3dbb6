// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What was copied, as cards to search, to copy again and to keep.
FocusScope {
    id: root

    readonly property QtObject model: App.clipboard
    readonly property bool isReady: model.availability === "ready"
    readonly property Item mainItem: isReady ? grid : state
    readonly property string footerText: model.status
    readonly property string footerSign: model.statusSign
    readonly property string footerAction: model.statusAction
    readonly property var footerKeys: !isReady ? [] : [
        {key: qsTr("Enter"), text: model.pastes ? qsTr("paste") : qsTr("copy")},
        {key: "S", text: qsTr("favourite")}, {key: qsTr("Del"), text: qsTr("remove")}]
    readonly property var kinds: [{value: "all", label: qsTr("All")},
                                  {value: "text", label: qsTr("Text")},
                                  {value: "link", label: qsTr("Links")},
                                  {value: "image", label: qsTr("Images")},
                                  {value: "files", label: qsTr("Files")}]

    signal footerActionClicked

    onFooterActionClicked: model.takeStatusAction()

    implicitWidth: 600
    implicitHeight: 220
    onIsReadyChanged: if (activeFocus && isReady) { grid.forceActiveFocus(Qt.TabFocusReason); }
    Component.onDestruction: model.setShown(false)
    QtObject {
        readonly property bool isShown: root.visible && root.Window.visibility !== Window.Hidden

        onIsShownChanged: {
            root.model.setShown(isShown);
            grid.begin();
        }
        Component.onCompleted: root.model.setShown(isShown)
    }
    Field {
        id: search

        visible: root.isReady
        anchors.left: parent.left
        width: 200
        iconName: "search"
        hint: qsTr("Search")
        text: root.model.query
        onEdited: text => root.model.query = text
        onAccepted: grid.forceActiveFocus(Qt.TabFocusReason)
        Keys.onDownPressed: grid.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEscapePressed: event => {
            event.accepted = root.model.query !== "";
            root.model.query = "";
        }
    }
    Row {
        visible: root.isReady
        anchors.right: parent.right
        y: 2
        spacing: 8
        Repeater {
            model: root.kinds
            delegate: Chip {
                required property var modelData

                text: modelData.label
                chosen: root.model.filter === modelData.value
                onClicked: root.model.filter = modelData.value
            }
        }
        Chip {
            iconName: "star"
            chosen: root.model.filter === "favourite"
            Accessible.name: qsTr("Favourites")
            onClicked: root.model.filter = chosen ? "all" : "favourite"
        }
    }
    ClipboardGrid {
        id: grid

        visible: root.isReady
        y: 46
        width: parent.width
        height: parent.height - 46
        focus: true
        onSearchWanted: {
            search.forceActiveFocus(Qt.ShortcutFocusReason);
            search.selectAll();
        }
    }
    Txt {
        visible: root.isReady && text !== ""
        y: 58
        width: parent.width
        role: "note"
        color: Theme.color.text3
        text: root.model.findings
    }
    FocusScope {
        id: state

        visible: !root.isReady
        anchors.fill: parent
        AvailabilityView {
            anchors.centerIn: parent
            width: 340
            availability: root.model.availability
            iconName: root.model.availability === "unconfigured"
                      || root.model.availability === "empty" ? "clipboard" : ""
            message: root.model.message
            note: root.model.note
            primaryText: root.model.primaryText
            onPrimary: root.model.takeStep()
        }
    }
}
