// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// One place in the panel's header: an icon, and its title once it is chosen.
T.TabButton {
    id: root

    property string iconName
    property string title
    property string keyHint
    property bool chosen: false
    property bool reachable: true // by Tab; among tabs only the chosen one is

    readonly property bool showsTitle: chosen

    implicitWidth: showsTitle ? 18 + 8 + label.implicitWidth + 22 : 34
    implicitHeight: 32
    checkable: false // the panel says which is chosen
    autoExclusive: false
    hoverEnabled: true
    focusPolicy: reachable || activeFocus ? Qt.TabFocus : Qt.NoFocus
    // The focus of a tab that stops being the chosen one stays until it is taken elsewhere.
    activeFocusOnTab: reachable || activeFocus
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: title
    Accessible.description: keyHint
    Accessible.selected: chosen
    Accessible.onPressAction: clicked()

    contentItem: Item {
        Icon {
            x: root.showsTitle ? (root.mirrored ? parent.width - 28 : 10) : (parent.width - 18) / 2
            y: 7
            name: root.iconName
            color: root.chosen ? Theme.color.accent : Theme.color.text2
        }
        Txt {
            id: label

            visible: root.showsTitle
            x: root.mirrored ? 12 : 36
            anchors.verticalCenter: parent.verticalCenter
            role: "strong"
            font.weight: Font.DemiBold
            text: root.title
            Accessible.ignored: true
        }
    }
    background: Rectangle {
        radius: Theme.radius.row
        color: root.down ? Theme.color.bg3
             : root.chosen || root.hovered ? Theme.color.bg2 : Qt.alpha(Theme.color.bg2, 0)
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing {
            shown: root.visualFocus
            corner: Theme.radius.row
            isInner: true
        }
    }

    Loader {
        active: root.visible && !root.showsTitle && (root.hovered || root.visualFocus)
        sourceComponent: Tip {
            parent: root
            text: root.title
            keyHint: root.keyHint
            visible: true
        }
    }
}
