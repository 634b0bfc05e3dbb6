// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// On or off. It shows `checked` and asks for the other through `toggled`; it does not change
// itself, so that it never shows what was refused.
Item {
    id: root

    property bool checked: false
    property string name
    property bool lit: button.hovered
    property bool pressed: button.down
    property bool ringed: button.visualFocus

    signal toggled(bool checked)

    readonly property color on: pressed ? Theme.color.accentPressed
                              : lit ? Theme.color.accentHover : Theme.color.accent

    implicitWidth: 38
    implicitHeight: 22
    opacity: enabled ? 1 : 0.4

    T.CheckBox {
        id: button

        anchors.fill: parent
        anchors.topMargin: -4 // the target is 30 high
        anchors.bottomMargin: -4
        checkable: false // only the owner changes it
        hoverEnabled: true
        focusPolicy: Qt.TabFocus
        Keys.onReturnPressed: clicked()
        Keys.onEnterPressed: clicked()
        Accessible.name: root.name
        Accessible.onPressAction: clicked()
        Accessible.onToggleAction: clicked()
        Accessible.checkable: true
        Accessible.checked: root.checked
        onClicked: root.toggled(!root.checked)
    }
    Rectangle {
        id: track

        anchors.fill: parent
        radius: 11
        color: root.checked ? root.on : Theme.color.bg3
        border.width: root.checked ? 0 : 1
        border.color: Theme.color.line2
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: 11 }
    }
    Rectangle {
        readonly property bool isFar: root.checked !== root.LayoutMirroring.enabled

        x: isFar ? 19 : 3
        y: 3
        width: 16
        height: 16
        radius: 8
        color: root.checked ? Theme.color.onAccent
             : Theme.isDark ? Theme.color.text2 : Theme.color.text3
        Behavior on x {
            enabled: root.visible && !Theme.reducedMotion
            NumberAnimation {
                duration: Theme.motion.hover
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.motion.standard
            }
        }
    }
}
