// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The state of the view at the start; at the end its keys or one link. A message takes the
// place of both for a while, with what can be done about it.
FocusScope {
    id: root

    property Item shown // the view

    readonly property bool hasMessage: App.panel.message !== ""
    readonly property string linkText: hasMessage ? App.panel.messageAction
                                                  : shown?.footerLink ?? ""
    readonly property bool canFocus: linkText !== ""
    readonly property var keys: hasMessage ? [] : shown?.footerKeys ?? []
    // Some views draw the end of their footer themselves.
    readonly property var custom: hasMessage ? null : shown?.footerContent ?? null

    // A dot before the words, and what can be done about them behind.
    readonly property string dot: hasMessage ? "" : shown?.footerSign ?? ""
    readonly property string action: hasMessage ? "" : shown?.footerAction ?? ""

    Hairline { width: parent.width }
    Rectangle {
        id: dotSign

        visible: root.dot !== ""
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: root.dot === "warn" ? Theme.color.warn : Theme.color.accent
    }
    FooterLink {
        id: deed

        visible: text !== ""
        anchors.left: said.right
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        text: root.action
        onClicked: root.shown.footerActionClicked()
    }
    Icon {
        id: sign

        visible: name !== ""
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        size: 14
        color: Theme.color.text3
        name: root.hasMessage ? "" : root.shown?.footerIcon ?? ""
    }
    Loader {
        id: own

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        active: root.custom !== null
        sourceComponent: root.custom
    }
    Txt {
        id: said

        anchors.left: parent.left
        anchors.leftMargin: sign.visible ? 20 : dotSign.visible ? 14 : 0
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, parent.width - 14 - anchors.leftMargin - (link.visible ? link.width : 0)
                        - (hints.visible ? hints.width : 0) - (own.active ? own.width : 0)
                        - (deed.visible ? deed.width + 14 : 0))
        role: "note"
        color: root.hasMessage ? Theme.color.text1 : Theme.color.text3
        text: root.hasMessage ? App.panel.message : root.shown?.footerText ?? ""
        Accessible.role: root.hasMessage ? Accessible.AlertMessage : Accessible.StaticText
    }
    KeyHints {
        id: hints

        visible: root.keys.length > 0 && !link.visible
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        keys: root.keys
    }
    FooterLink {
        id: link

        visible: root.canFocus
        focus: true
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.linkText
        onClicked: {
            if (root.hasMessage) {
                App.panel.takeMessageAction();
            } else {
                root.shown.footerLinkClicked();
            }
        }
    }
}
