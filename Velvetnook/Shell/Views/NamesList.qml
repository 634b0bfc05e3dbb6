// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// Numbered rows of phrases; the chosen one is always in sight.
T.Control {
    id: root

    focusPolicy: Qt.StrongFocus
    Accessible.name: App.names.searchHint

    contentItem: ListView {
        id: rows

        model: App.names.list
        Accessible.role: Accessible.List // a control's own would not be heard
        Accessible.name: App.names.searchHint
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        keyNavigationEnabled: false
        highlightFollowsCurrentItem: false
        currentIndex: App.names.row
        delegate: NamesRow {
            width: rows.width
            ringed: root.visualFocus && isChosen
            onClicked: root.forceActiveFocus(Qt.MouseFocusReason)
        }
        onCurrentIndexChanged: show()
        onCountChanged: show()

        function show() {
            positionViewAtIndex(Math.max(0, App.names.row), ListView.Contain);
        }
    }
    Txt {
        visible: App.names.isListEmpty
        x: 10
        y: 8
        text: App.names.emptyText
        color: Theme.color.text2
    }
}
