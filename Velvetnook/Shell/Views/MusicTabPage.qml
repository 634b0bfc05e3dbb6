// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The user's leave to read and drive one tab of a browser, and its withdrawal.
FocusScope {
    id: root

    readonly property QtObject tab: App.music.tab

    signal done

    IconButton {
        id: back

        anchors.left: parent.left
        anchors.leftMargin: -8
        size: 30
        iconName: "left"
        name: qsTr("Back")
        onClicked: root.done()
    }
    Txt {
        anchors.left: back.right
        anchors.leftMargin: 6
        anchors.verticalCenter: back.verticalCenter
        role: "heading"
        text: qsTr("A tab of your browser")
    }
    SecondaryButton {
        visible: root.tab.isConnected
        anchors.right: parent.right
        small: true
        text: qsTr("Disconnect")
        onClicked: root.tab.disconnectTab()
    }
    Txt {
        id: explanation

        y: 36
        width: parent.width
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "note"
        wrapMode: Text.Wrap
        color: Theme.color.text3
        text: qsTr("Start the browser with --remote-debugging-port=9222, play something, and choose its tab here. Only that tab is read, and nothing until you choose it. While the browser runs so, other programs on this computer can drive it too.")
    }
    Row {
        id: search

        anchors.top: explanation.bottom
        anchors.topMargin: 10
        spacing: 8
        Field {
            id: port

            width: 120
            focus: true
            text: root.tab.port
            name: qsTr("Port")
            onAccepted: root.tab.look(parseInt(text))
        }
        SecondaryButton {
            busy: root.tab.isLooking
            text: qsTr("Show its tabs")
            onClicked: root.tab.look(parseInt(port.text))
        }
        Txt {
            anchors.verticalCenter: parent.verticalCenter
            width: root.width - x
            horizontalAlignment: Text.AlignLeft
            role: "note"
            wrapMode: Text.Wrap
            color: Theme.color.text2
            text: root.tab.message
        }
    }
    ScrollBody {
        anchors.top: search.bottom
        anchors.topMargin: 6
        anchors.bottom: parent.bottom
        width: parent.width

        Column {
            width: parent.width
            Repeater {
                model: root.tab.tabs
                delegate: ListRow {
                    required property var modelData
                    required property int index

                    width: root.width
                    iconName: "out"
                    title: modelData.title
                    note: modelData.note
                    onClicked: {
                        root.tab.connectTab(index);
                        root.done();
                    }
                }
            }
        }
    }
}
