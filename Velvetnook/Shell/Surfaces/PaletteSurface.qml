// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The command palette: a line to type in, what it finds, and the keys that help.
FocusScope {
    id: root

    // What the screen leaves for it.
    property real maximumHeight: 640

    readonly property int rowHeight: 44
    readonly property int headHeight: 32
    readonly property int mostRows: App.palette.mostRows
    readonly property real wantedBody: list.count * rowHeight + App.palette.headCount * headHeight
    readonly property real mostBody: Math.min(mostRows * rowHeight + App.palette.headsInSight * headHeight,
                                              maximumHeight - line.height - foot.height - 8)

    implicitWidth: 640
    implicitHeight: line.height + body.height + 8 + foot.height
    focus: true
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("Command palette")

    MouseArea { anchors.fill: parent } // what is clicked here does not reach the scrim
    Shadow { step: "floating" }
    Rectangle {
        anchors.fill: parent
        anchors.margins: -1
        radius: Theme.radius.palette + 1
        color: Theme.color.line
    }
    Rectangle {
        anchors.fill: parent
        radius: Theme.radius.palette
        color: Theme.color.bg0
    }

    PaletteLine {
        id: line

        width: parent.width
        focus: true
        pageRows: root.mostRows - 1
    }

    Item {
        id: body

        anchors.top: line.bottom
        width: parent.width
        height: App.palette.isNothingFound ? nothing.height
                                           : Math.max(0, Math.min(root.wantedBody, root.mostBody))

        ListView {
            id: list

            anchors.fill: parent
            model: App.palette.rows
            currentIndex: App.palette.current
            interactive: contentHeight > height + 1
            boundsBehavior: Flickable.StopAtBounds
            clip: interactive
            highlightFollowsCurrentItem: false
            keyNavigationEnabled: false
            cacheBuffer: 600
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Results")
            onCurrentIndexChanged: {
                if (currentIndex === 0) {
                    positionViewAtBeginning();
                } else {
                    positionViewAtIndex(currentIndex, ListView.Contain);
                }
            }
            delegate: PaletteEntry {
                width: list.width
                isCurrent: ListView.isCurrentItem
                onClicked: {
                    App.palette.current = index;
                    App.palette.activate();
                }
            }
        }
        PaletteNothing {
            id: nothing

            width: parent.width
            visible: App.palette.isNothingFound
        }
    }

    Item {
        id: foot

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.right: parent.right
        height: 40

        Hairline { width: parent.width }
        Txt {
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            role: "note"
            color: Theme.color.text3
            text: App.palette.footer
        }
        KeyHints {
            anchors.right: parent.right
            anchors.rightMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            keys: App.palette.keys
        }
    }
}
