// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// What all buttons share: size, states, keyboard. The kinds differ in their colours.
T.AbstractButton {
    id: root

    property string iconName
    property bool small: false
    property bool busy: false
    property color fill: Theme.color.bg2
    property color fillHover: Theme.color.bg3
    property color fillPressed: Theme.color.line2
    property color fillDisabled: Theme.isDark ? Theme.color.bg1 : Theme.color.bg2
    property color ink: Theme.color.text1
    property color iconInk: Theme.color.text2
    property int weight: Font.Medium
    property int iconSize: small ? 15 : 18
    property real corner: small ? 9 : Theme.radius.button
    property bool lit: hovered
    property bool ringed: visualFocus

    implicitWidth: contentItem.implicitWidth + leftPadding + rightPadding
    implicitHeight: small ? 30 : 36
    horizontalPadding: small ? 11 : 14
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    scale: down && !Theme.reducedMotion ? 0.97 : 1
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.onPressAction: clicked()

    contentItem: ButtonFace {
        text: root.text
        iconName: root.iconName
        iconSize: root.iconSize
        busy: root.busy
        ink: root.enabled ? root.ink : Theme.color.text4
        iconInk: root.enabled ? root.iconInk : Theme.color.text4
        pixelSize: root.small ? 12 : 13
        weight: root.weight
        room: root.availableWidth
    }
    background: Rectangle {
        radius: root.corner
        color: !root.enabled ? root.fillDisabled
             : root.down ? root.fillPressed : root.lit ? root.fillHover : root.fill
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: root.corner }
    }
    Behavior on scale { PressMotion {} }
}
