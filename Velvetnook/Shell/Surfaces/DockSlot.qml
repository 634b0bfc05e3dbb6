// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The slot of one workspace on the dock's tab. What is dropped on it goes into the workspace.
T.AbstractButton {
    id: root

    required property var modelData
    property int workspace: 0
    property int iconSize: 21
    property bool chosen: false
    property bool isCurrent: false
    property real magnification: 1

    signal stepped(int by)
    signal entered // by the keyboard

    readonly property bool isVertical: App.dock.edge !== "bottom"
    readonly property int forwards: LayoutMirroring.enabled ? -1 : 1

    hoverEnabled: true
    focusPolicy: isCurrent || activeFocus ? Qt.TabFocus : Qt.NoFocus
    focus: isCurrent
    scale: magnification * (down && !Theme.reducedMotion ? 0.97 : 1)
    text: modelData.title
    Accessible.role: Accessible.PageTab
    Accessible.name: modelData.title
    Accessible.selected: chosen
    Accessible.onPressAction: clicked()
    Keys.onPressed: event => {
        const by = isVertical ? (event.key === Qt.Key_Down ? 1 : event.key === Qt.Key_Up ? -1 : 0)
                              : (event.key === Qt.Key_Right ? forwards
                                 : event.key === Qt.Key_Left ? -forwards : 0);
        event.accepted = by !== 0;
        if (by !== 0) {
            stepped(by);
        }
    }
    Keys.onReturnPressed: entered()
    Keys.onEnterPressed: entered()
    Keys.onSpacePressed: entered()
    Behavior on scale { PressMotion {} }

    contentItem: Item {
        Column {
            anchors.centerIn: parent
            width: parent.width
            spacing: 4

            Icon {
                anchors.horizontalCenter: parent.horizontalCenter
                name: root.modelData.icon
                size: root.iconSize
                color: root.chosen ? Theme.color.accent
                     : root.hovered ? Theme.color.text1 : Theme.color.text2
            }
            Txt {
                width: parent.width - 4
                x: 2
                horizontalAlignment: Text.AlignHCenter
                role: "caption"
                lineHeight: 13
                font.weight: root.chosen ? Font.DemiBold : Font.Medium
                text: root.modelData.title
                color: root.chosen || root.hovered ? Theme.color.text1 : Theme.color.text2
                Accessible.ignored: true
            }
        }
    }
    background: Rectangle {
        radius: 17
        color: root.chosen || drop.containsDrag ? Theme.color.soft2
             : root.down ? Theme.color.bg3
             : root.hovered ? Theme.color.bg2 : Qt.alpha(Theme.color.bg2, 0)
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.visualFocus; corner: 17; isInner: true }
    }
    DropArea {
        id: drop

        anchors.fill: parent
        onEntered: drag => {
            drag.accept();
            App.dock.select(root.workspace);
        }
        onDropped: dropped => {
            if (App.dock.drop(root.workspace, dropped.urls, dropped.hasText ? dropped.text : "")) {
                dropped.accept(Qt.CopyAction);
            }
        }
    }
}
