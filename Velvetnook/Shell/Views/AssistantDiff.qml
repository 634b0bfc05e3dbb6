// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The lines of a unified diff. They run from left to right in every language.
ListView {
    id: root

    property var lines: []

    clip: true
    model: lines
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    Keys.onUpPressed: contentY = Math.max(originY, contentY - 36)
    Keys.onDownPressed: contentY = Math.max(originY, Math.min(originY + contentHeight - height,
                                                              contentY + 36))
    Accessible.role: Accessible.List
    Accessible.name: qsTr("The change")

    delegate: Rectangle {
        id: line

        required property var modelData

        readonly property bool isAdded: modelData.kind === "added"
        readonly property bool isRemoved: modelData.kind === "removed"

        width: root.width
        height: Math.max(18, words.implicitHeight)
        color: isAdded ? Theme.color.soft2 : isRemoved ? Theme.color.dangerSoft : Theme.color.bg1
        Accessible.role: Accessible.ListItem
        Accessible.name: modelData.text

        Text {
            id: words

            x: 8
            width: parent.width - 16
            font.family: "monospace"
            font.pixelSize: 12
            font.hintingPreference: Font.PreferNoHinting
            lineHeight: 18
            lineHeightMode: Text.FixedHeight
            textFormat: Text.PlainText
            wrapMode: Text.WrapAnywhere
            horizontalAlignment: Text.AlignLeft
            color: line.modelData.kind === "head" ? Theme.color.text3
                 : line.isRemoved ? Theme.color.danger : line.isAdded ? Theme.color.text1 : Theme.color.text2
            text: line.modelData.text
            Accessible.ignored: true
        }
    }
    FocusRing { shown: root.activeFocus; corner: 8 }
}
