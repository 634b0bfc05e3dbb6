// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A page to type on.
FocusScope {
    id: root

    property alias text: input.text
    property string hint
    property string name: hint
    property alias readOnly: input.readOnly
    property alias input: input
    property bool framed: true
    property bool ringed: input.activeFocus

    signal edited(string text)

    implicitWidth: 240
    implicitHeight: 120

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius.card
        color: root.framed ? Theme.color.bg1 : "transparent"
        border.width: !root.framed ? 0 : root.ringed ? Theme.outline : 1
        border.color: root.ringed ? Theme.color.accent : Theme.color.line
    }
    ScrollBody {
        id: scroll

        anchors.fill: parent
        anchors.margins: root.framed ? 2 : 0
        contentHeight: input.implicitHeight

        T.TextArea {
            id: input

            // Keeps the line of the caret in sight.
            function follow() {
                const top = cursorRectangle.y;
                const bottom = top + cursorRectangle.height;
                if (top < scroll.contentY) {
                    scroll.contentY = Math.max(0, top - topPadding);
                } else if (bottom > scroll.contentY + scroll.height) {
                    scroll.contentY = bottom + bottomPadding - scroll.height;
                }
            }

            width: scroll.width
            height: Math.max(implicitHeight, scroll.height)
            implicitHeight: contentHeight + topPadding + bottomPadding
            padding: root.framed ? 12 : 0
            focus: true
            selectByMouse: true
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.Wrap
            font.family: Theme.familyOf("body")
            font.pixelSize: 14
            color: enabled ? Theme.color.text1 : Theme.color.text4
            selectionColor: Theme.color.soft2
            selectedTextColor: Theme.color.text1
            Accessible.name: root.name
            // Who has no pointer must be able to leave the page as every other control.
            Keys.onTabPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
            onCursorRectangleChanged: follow()
            Component.onCompleted: Theme.spaceLines(textDocument, 6)
            onTextChanged: {
                Theme.spaceLines(textDocument, 6);
                if (activeFocus) {
                    root.edited(text);
                }
            }
            cursorDelegate: Rectangle {
                visible: input.activeFocus && !input.readOnly
                width: 2
                radius: 1
                color: Theme.color.accent
            }

            Txt {
                visible: input.length === 0 && input.preeditText === ""
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.top: parent.top
                anchors.margins: input.padding
                text: root.hint
                pixelSize: 14
                color: Theme.color.text3
                Accessible.ignored: true
            }
        }
    }
}
