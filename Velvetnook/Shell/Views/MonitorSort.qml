// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The head of a column: a click sorts by it.
T.AbstractButton {
    id: root

    required property string order

    readonly property bool isChosen: App.monitor.order === order

    height: 20
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    onClicked: App.monitor.order = order
    Accessible.name: qsTr("Sort by %1").arg(text)
    Accessible.checked: isChosen
    Accessible.onPressAction: clicked()

    contentItem: Txt {
        verticalAlignment: Text.AlignVCenter
        horizontalAlignment: Text.AlignRight
        role: "caption"
        text: root.text
        color: root.isChosen || root.hovered ? Theme.color.text1 : Theme.color.text3
        Accessible.ignored: true
    }
    FocusRing {
        shown: root.visualFocus
        corner: Theme.radius.key
    }
}
