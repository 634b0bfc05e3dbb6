// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One item of a workspace, or the line between two groups of them.
T.AbstractButton {
    id: root

    required property int index
    required property string itemId
    required property string kind
    required property string title
    required property string iconName
    required property string iconSource
    required property string letter
    required property string lifetime
    required property string lifetimeText
    required property int tint
    required property bool isThere
    required property int column
    required property int line
    required property int dividersAbove

    property real magnification: 1

    signal stepped(int columns, int lines)
    signal moveWanted(int by)
    signal dropped(point at)
    signal menuWanted
    signal renameWanted

    readonly property bool isDivider: kind === "divider"
    readonly property int forwards: LayoutMirroring.enabled ? -1 : 1
    readonly property string note: !isThere ? qsTr("not there any more") : lifetimeText
    // What the tile itself does not say.
    readonly property string hint: note !== "" && label.truncated ? title + " · " + note
                                 : label.truncated ? title : note

    function readKey(event) {
        const columns = event.key === Qt.Key_Right ? forwards
                      : event.key === Qt.Key_Left ? -forwards : 0;
        const lines = event.key === Qt.Key_Down ? 1 : event.key === Qt.Key_Up ? -1 : 0;
        if (columns === 0 && lines === 0) {
            return false;
        }
        if (event.modifiers & Qt.AltModifier) {
            moveWanted(columns + 4 * lines);
        } else {
            stepped(columns, lines);
        }
        return true;
    }

    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    text: title
    z: drag.active ? 2 : 0
    Accessible.role: isDivider ? Accessible.Separator : Accessible.Button
    Accessible.name: isDivider ? qsTr("Divider") : title
    Accessible.description: note
    Accessible.onPressAction: App.dock.openItem(itemId)
    onClicked: App.dock.openItem(itemId)
    Keys.onReturnPressed: App.dock.openItem(itemId)
    Keys.onEnterPressed: App.dock.openItem(itemId)
    Keys.onDeletePressed: App.dock.removeItem(itemId)
    Keys.onPressed: event => {
        const isMenu = event.key === Qt.Key_Menu
                       || (event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier);
        event.accepted = true;
        if (isMenu) {
            menuWanted();
        } else if (event.key === Qt.Key_F2 && !isDivider) {
            renameWanted();
        } else {
            event.accepted = readKey(event);
        }
    }

    contentItem: Item {
        id: carried

        transform: Translate {
            x: drag.active ? drag.translation.x : 0
            y: drag.active ? drag.translation.y : 0
        }

        DockFace {
            id: face

            visible: !root.isDivider
            anchors.horizontalCenter: parent.horizontalCenter
            iconName: root.iconName
            iconSource: root.iconSource
            letter: root.letter
            tint: root.tint
            isThere: root.isThere
            lit: root.hovered
            pressed: root.down
            scale: root.magnification * (root.down && !Theme.reducedMotion ? 0.97 : 1)
            Behavior on scale { PressMotion {} }
            FocusRing { shown: root.visualFocus; corner: face.radius }

            Rectangle {
                visible: root.lifetimeText !== "" || !root.isThere
                x: root.LayoutMirroring.enabled ? -3 : parent.width - 14
                y: -3
                width: 17
                height: 17
                radius: 9
                color: Theme.color.bg0
                Icon {
                    anchors.centerIn: parent
                    name: root.isThere ? "history" : "alert"
                    size: 12
                    color: root.isThere ? Theme.color.accent : Theme.color.warn
                }
            }
        }
        Txt {
            id: label

            visible: !root.isDivider
            y: 54
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            role: "caption"
            text: root.title
            color: root.isThere ? Theme.color.text2 : Theme.color.text3
            Accessible.ignored: true
        }
        Hairline {
            visible: root.isDivider
            x: 4
            width: parent.width - 8
            anchors.verticalCenter: parent.verticalCenter
            color: root.hovered ? Theme.color.line2 : Theme.color.line
            FocusRing { shown: root.visualFocus; corner: 2 }
        }
    }
    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: root.menuWanted()
    }
    DragHandler {
        id: drag

        target: null
        onActiveChanged: {
            if (!active) {
                root.dropped(centroid.position);
            }
        }
    }
    Loader {
        active: root.visible && !drag.active && !root.isDivider && root.hint !== ""
                && (root.hovered || root.visualFocus)
        sourceComponent: Tip {
            parent: root
            text: root.hint
            visible: true
        }
    }
}
