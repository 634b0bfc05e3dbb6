// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The five accents, one of them chosen. Arrows move among them.
Row {
    id: root

    property var options: [] // [{value, label}]
    property string value

    signal chosen(string value)

    function step(from, by) {
        const next = swatches.itemAt(from + by);
        if (next) {
            chosen(next.modelData.value);
            next.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    spacing: 14
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Accent")

    Repeater {
        id: swatches

        model: root.options
        delegate: T.RadioButton {
            id: swatch

            required property var modelData
            required property int index

            readonly property bool isChosen: modelData.value === root.value
            readonly property color tone: Theme.accentOf(modelData.value)

            implicitWidth: Math.max(30, label.implicitWidth)
            implicitHeight: 46
            checkable: false // only the owner changes it
            autoExclusive: false
            hoverEnabled: true
            focusPolicy: isChosen ? Qt.TabFocus : Qt.NoFocus
            text: modelData.label
            Accessible.name: text
            Accessible.checkable: true
            Accessible.checked: isChosen
            Keys.onReturnPressed: clicked()
            Keys.onLeftPressed: root.step(index, root.LayoutMirroring.enabled ? 1 : -1)
            Keys.onRightPressed: root.step(index, root.LayoutMirroring.enabled ? -1 : 1)
            onClicked: root.chosen(modelData.value)

            Rectangle {
                id: disc

                anchors.horizontalCenter: parent.horizontalCenter
                y: 1
                width: 26
                height: 26
                radius: 13
                antialiasing: true
                color: swatch.tone

                Rectangle {
                    visible: swatch.isChosen || swatch.hovered || swatch.visualFocus
                    anchors.fill: parent
                    anchors.margins: -4
                    radius: 17
                    antialiasing: true
                    color: "transparent"
                    border.width: 2
                    border.color: swatch.visualFocus ? Theme.color.text1
                                : swatch.isChosen ? swatch.tone : Theme.color.line2
                }
            }
            Txt {
                id: label

                anchors.horizontalCenter: parent.horizontalCenter
                anchors.top: disc.bottom
                anchors.topMargin: 5
                role: "caption"
                text: swatch.text
                color: swatch.isChosen ? Theme.color.text1 : Theme.color.text3
                Accessible.ignored: true
            }
        }
    }
}
