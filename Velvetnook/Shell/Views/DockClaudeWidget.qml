// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// What the first of the coding assistants has used of its limit. Their logs are read only while
// this is seen.
DockWidgetCard {
    id: root

    readonly property var use: App.assistants.cards[0]
    readonly property bool hasUse: use !== undefined
    readonly property bool isSeen: visible && App.dock.isOpen
    property bool isIn: false

    function follow(seen) {
        if (seen !== isIn) {
            isIn = seen;
            if (seen) {
                App.assistants.enter();
            } else {
                App.assistants.leave();
            }
        }
    }

    implicitHeight: hasUse && use.value >= 0 ? 78 : 62
    name: hasUse ? use.spoken : qsTr("%1: %2", "assistants, what is known").arg(title).arg(below.text)
    onIsSeenChanged: follow(isSeen)
    Component.onCompleted: follow(isSeen)
    Component.onDestruction: follow(false)

    CardLabel {
        y: -2
        width: parent.width
        iconName: root.iconName
        text: root.hasUse ? root.use.title : root.title
    }
    Txt {
        anchors.right: parent.right
        y: -2
        role: "label"
        text: root.hasUse ? root.use.figure + root.use.unit : ""
        Accessible.ignored: true
    }
    ProgressBar4 {
        visible: root.hasUse && root.use.value >= 0
        y: 24
        width: parent.width
        value: visible ? root.use.value : 0
        Accessible.ignored: true
    }
    Txt {
        id: below

        y: root.hasUse && root.use.value >= 0 ? 35 : 19
        width: parent.width
        horizontalAlignment: Text.AlignLeft
        role: "note"
        text: !root.hasUse ? qsTr("Nothing of theirs was found yet")
            : root.use.note === "" ? root.use.span
            : qsTr("%1 · %2", "span of a limit, when it is reset").arg(root.use.span).arg(root.use.note)
        color: Theme.color.text3
        Accessible.ignored: true
    }
}
