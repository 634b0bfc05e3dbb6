// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A menu over what it belongs to: rows that arrows choose, Enter takes and Escape leaves.
T.Popup {
    id: root

    property var items: [] // [{text, iconName, enabled, key, checked}] or {separator: true}

    signal chosen(int index)

    // What had the focus. The template gives it to the window and not back.
    property Item before: null
    property bool isBeforeRinged: false

    readonly property bool isRightToLeft: parent ? parent.LayoutMirroring.enabled : false

    function popup(x, y) {
        root.x = x;
        root.y = y;
        open();
    }
    function canTake(index) {
        const item = items[index];
        return item !== undefined && !item.separator && item.enabled !== false;
    }
    function step(by) {
        for (let at = list.currentIndex + by; at >= 0 && at < items.length; at += by) {
            if (canTake(at)) {
                list.currentIndex = at;
                return;
            }
        }
    }
    function take(index) {
        if (canTake(index)) {
            close();
            chosen(index);
        }
    }

    implicitWidth: Math.max(160, column.widest + 12)
    implicitHeight: Math.min(list.contentHeight + 12, 320)
    padding: 6
    margins: 6
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
    onAboutToShow: {
        before = parent ? parent.Window.activeFocusItem : null;
        isBeforeRinged = before !== null && before.visualFocus === true;
        list.currentIndex = items.findIndex(item => item.checked === true);
        list.positionViewAtIndex(list.currentIndex, ListView.Center);
    }

    onClosed: {
        if (before !== null) {
            before.forceActiveFocus(isBeforeRinged ? Qt.ShortcutFocusReason : Qt.PopupFocusReason);
        }
    }

    QtObject {
        id: column

        property real widest: 0
    }
    contentItem: ListView {
        id: list

        model: root.items
        clip: contentHeight > height
        focus: true
        boundsBehavior: Flickable.StopAtBounds
        interactive: contentHeight > height
        LayoutMirroring.enabled: root.isRightToLeft
        LayoutMirroring.childrenInherit: true
        Keys.onUpPressed: root.step(-1)
        Keys.onDownPressed: root.step(1)
        Keys.onReturnPressed: root.take(currentIndex)
        Keys.onEnterPressed: root.take(currentIndex)
        Keys.onSpacePressed: root.take(currentIndex)
        Accessible.role: Accessible.PopupMenu
        Accessible.name: qsTr("Menu")

        delegate: MenuRow {
            required property var modelData
            required property int index

            width: ListView.view.width
            text: modelData.text ?? ""
            iconName: modelData.iconName ?? ""
            keyHint: modelData.key ?? ""
            checked: modelData.checked ?? false
            isSeparator: modelData.separator ?? false
            enabled: root.canTake(index)
            current: ListView.isCurrentItem
            onPointed: ListView.view.currentIndex = index
            onClicked: root.take(index)
            onImplicitWidthChanged: column.widest = Math.max(column.widest, implicitWidth)
            Component.onCompleted: column.widest = Math.max(column.widest, implicitWidth)
        }
    }
    background: Rectangle {
        radius: 16
        color: Theme.color.bg2
        border.width: 1
        border.color: Theme.color.line2
        Shadow { step: "raised" }
    }
    // Without a way out: it would hold the focus, and the keys with it, until it is gone.
    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.reducedMotion ? 100 : Theme.motion.fade
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.standard
        }
    }
}
