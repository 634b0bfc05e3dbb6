// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// One value of a Segmented.
T.RadioButton {
    id: root

    property string iconName
    property bool chosen: false
    property bool lit: hovered
    property bool ringed: visualFocus

    readonly property color ink: !enabled ? Theme.color.text4
                               : chosen || lit ? Theme.color.text1 : Theme.color.text2

    implicitWidth: contentItem.implicitWidth + 24
    implicitHeight: 26
    checkable: false // only the owner changes it
    autoExclusive: false
    hoverEnabled: true
    // Tab goes to the chosen one, as among radio buttons.
    focusPolicy: chosen ? Qt.TabFocus : Qt.NoFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.onPressAction: clicked()
    Accessible.checkable: true
    Accessible.checked: chosen

    contentItem: ButtonFace {
        text: root.text
        iconName: root.iconName
        iconSize: 14
        ink: root.ink
        iconInk: root.ink
        pixelSize: 12
        weight: root.chosen ? Font.DemiBold : Font.Medium
        room: root.width - 24
    }
    background: Rectangle {
        radius: Theme.radius.segment
        color: root.down ? Theme.color.bg3
             : !root.chosen ? Qt.alpha(Theme.color.bg3, 0)
             : Theme.isDark ? Theme.color.bg3 : Theme.color.bg1
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: Theme.radius.segment; isInner: true }
    }
}
