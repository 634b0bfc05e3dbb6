// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The month: each day with its Islamic date below, and a dot where something is planned.
FocusScope {
    id: root

    readonly property QtObject model: App.calendar
    readonly property real column: width / 7
    readonly property real row: (height - 60) / Math.max(5, model.weeks)

    signal enterWanted

    function act(event) {
        const start = LayoutMirroring.enabled ? 1 : -1;
        const key = letters.keyOf(event);
        event.accepted = true;
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier)) {
            event.accepted = false;
        } else if (key === Qt.Key_Left || key === Qt.Key_Right) {
            model.move(key === Qt.Key_Left ? start : -start);
        } else if (key === Qt.Key_Up || key === Qt.Key_Down) {
            model.move(key === Qt.Key_Up ? -7 : 7);
        } else if (key === Qt.Key_PageUp || key === Qt.Key_PageDown) {
            model.moveMonths(key === Qt.Key_PageUp ? -1 : 1);
        } else if (key === Qt.Key_T || key === Qt.Key_Home) {
            model.goToday();
        } else if (key === Qt.Key_Return || key === Qt.Key_Enter) {
            enterWanted();
        } else {
            event.accepted = false;
        }
    }

    activeFocusOnTab: true
    Keys.onPressed: event => root.act(event)
    Accessible.role: Accessible.Table
    Accessible.name: model.month
    Accessible.description: model.date + ", " + model.islamicDate

    KeyLetters { id: letters }
    Txt {
        anchors.left: parent.left
        anchors.leftMargin: 1
        height: 30
        width: 180
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
        role: "heading"
        text: root.model.month
    }
    Row {
        anchors.right: parent.right
        IconButton {
            size: 30
            iconSize: 16
            iconName: "left"
            name: qsTr("Month before")
            keyHint: qsTr("Page up")
            onClicked: root.model.moveMonths(-1)
        }
        IconButton {
            size: 30
            iconSize: 16
            iconName: "right"
            name: qsTr("Month after")
            keyHint: qsTr("Page down")
            onClicked: root.model.moveMonths(1)
        }
    }
    Row {
        y: 38
        width: parent.width
        Repeater {
            model: root.model.weekdays
            delegate: Txt {
                required property string modelData

                width: root.column
                horizontalAlignment: Text.AlignHCenter
                role: "caption"
                color: Theme.color.text3
                text: modelData
            }
        }
    }
    Grid {
        y: 60
        columns: 7
        Repeater {
            model: root.model.days
            delegate: CalendarDayCell {
                width: root.column
                height: root.row
                ringed: isChosen && root.activeFocus
                onClicked: {
                    root.model.choose(index);
                    root.forceActiveFocus();
                }
            }
        }
    }
    WheelHandler {
        property real turned: 0

        onWheel: event => {
            turned += event.angleDelta.y;
            if (Math.abs(turned) >= 120) {
                root.model.moveMonths(turned > 0 ? -1 : 1);
                turned = 0;
            }
        }
    }
}
