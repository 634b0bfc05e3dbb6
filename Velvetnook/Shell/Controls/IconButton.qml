// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// A button of one icon. Its words are its accessible name and, with the key, its tooltip.
T.AbstractButton {
    id: root

    property string iconName
    property string name
    property string tip: name
    property string keyHint
    property int size: 36
    property int iconSize: size < 36 ? 17 : 18
    property bool filled: false       // at rest too, like a secondary button
    property bool iconFilled: false
    property color ink: Theme.color.text2
    property real corner: size < 36 ? 9 : Theme.radius.button
    property bool lit: hovered
    property bool ringed: visualFocus

    readonly property color rest: filled ? Theme.color.bg2 : Qt.alpha(Theme.color.bg3, 0)

    implicitWidth: size
    implicitHeight: size
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    scale: down && !Theme.reducedMotion ? 0.97 : 1
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: name
    Accessible.onPressAction: clicked()
    Accessible.description: keyHint

    contentItem: Item {
        Icon {
            anchors.centerIn: parent
            name: root.iconName
            size: root.iconSize
            filled: root.iconFilled
            color: root.enabled ? root.ink : Theme.color.text4
        }
    }
    background: Rectangle {
        radius: root.corner
        color: !root.enabled ? root.rest
             : root.down ? Theme.color.line2 : root.lit ? Theme.color.bg3 : root.rest
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: root.corner }
    }
    Behavior on scale { PressMotion {} }

    Loader {
        active: root.tip !== "" && root.visible && (root.hovered || root.visualFocus)
        sourceComponent: Tip {
            parent: root
            text: root.tip
            keyHint: root.keyHint
            visible: true
        }
    }
}
