// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A flat area that holds what belongs together; one that is `interactive` is also a button.
Item {
    id: root

    property bool interactive: false
    property bool selected: false
    property string name // of the button
    property real corner: Theme.radius.card
    property real padding: 14
    property color fill: Theme.color.bg1
    property bool lit: button.hovered
    property bool pressed: button.down
    property bool ringed: button.visualFocus
    default property alias content: slot.data
    property alias contentArea: slot

    signal clicked

    implicitWidth: slot.childrenRect.width + 2 * padding
    implicitHeight: slot.childrenRect.height + 2 * padding
    scale: pressed && interactive && !Theme.reducedMotion ? 0.97 : 1
    Behavior on scale { PressMotion {} }

    Rectangle {
        anchors.fill: parent
        radius: root.corner
        color: root.selected ? Theme.color.soft
             : !root.interactive ? root.fill
             : root.pressed ? Theme.color.bg3 : root.lit ? Theme.color.bg2 : root.fill
        border.width: root.selected ? Theme.outline : 0
        border.color: Theme.color.accent
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: root.corner }
    }
    T.AbstractButton {
        id: button

        anchors.fill: parent
        visible: root.interactive
        hoverEnabled: true
        focusPolicy: Qt.TabFocus
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        Accessible.name: root.name
        Accessible.onPressAction: clicked()
        onClicked: root.clicked()
    }
    Item {
        id: slot

        anchors.fill: parent
        anchors.margins: root.padding
    }
}
