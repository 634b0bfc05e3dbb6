// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// One of a few values to choose from.
T.AbstractButton {
    id: root

    property string iconName
    property bool chosen: false
    property bool small: false
    property bool bare: false // without an outline, as a quiet link
    property color restInk: Theme.color.text2
    property bool iconTrails: false
    property int iconSize: 14
    property int pixelSize: 12
    property bool lit: hovered
    property bool ringed: visualFocus

    readonly property bool isBare: text === ""
    readonly property color plainFill: down ? Theme.color.bg3
                                     : lit ? Theme.color.bg2 : Qt.alpha(Theme.color.bg2, 0)
    readonly property color chosenFill:
        Qt.tint(Theme.color.soft2, Qt.alpha(Theme.color.accent, down ? 0.24 : lit ? 0.12 : 0))
    readonly property color plainInk: chosen ? Theme.color.accent : restInk
    readonly property color ink: !enabled ? Theme.color.text4
                               : chosen && down ? Theme.color.text1 : plainInk

    implicitWidth: isBare ? implicitHeight : contentItem.implicitWidth + 2 * horizontalPadding
    implicitHeight: small ? 26 : 30
    horizontalPadding: small ? 10 : 12
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Accessible.checkable: true
    Accessible.checked: chosen

    contentItem: ButtonFace {
        text: root.text
        iconName: root.iconName
        signTrails: root.iconTrails
        iconSize: root.iconSize
        ink: root.ink
        iconInk: root.ink
        pixelSize: root.pixelSize
        weight: root.chosen ? Font.DemiBold : Font.Medium
        room: root.width - 2 * root.horizontalPadding
    }
    background: Rectangle {
        radius: height / 2
        color: !root.enabled && root.chosen ? Theme.color.bg2
             : root.chosen ? root.chosenFill : root.plainFill
        border.width: root.chosen || root.bare ? 0 : 1
        border.color: Theme.color.line2
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: root.height / 2 }
    }
}
