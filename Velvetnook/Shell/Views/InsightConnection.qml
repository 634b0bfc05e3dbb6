// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Connects a provider with a key, or disconnects it. The key is typed here once and shown
// nowhere.
FocusScope {
    id: root

    readonly property QtObject model: App.insights
    readonly property bool isStripe: model.provider === "stripe"

    signal done

    function send() {
        model.connectKey(key.text, website.text);
    }

    Component.onDestruction: model.forgetRefusal()

    IconButton {
        id: back

        anchors.left: parent.left
        anchors.leftMargin: -8
        size: 30
        iconName: "left"
        name: qsTr("Back")
        onClicked: root.done()
    }
    Txt {
        anchors.left: back.right
        anchors.leftMargin: 6
        anchors.verticalCenter: back.verticalCenter
        role: "heading"
        text: root.isStripe ? qsTr("Connect Stripe") : qsTr("Connect DataFast")
    }
    Txt {
        id: explanation

        y: 36
        width: parent.width
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "note"
        wrapMode: Text.Wrap
        color: Theme.color.text3
        text: root.isStripe
              ? qsTr("Make a restricted key with Balance read access at Stripe. It is kept in your keyring, is sent to Stripe alone and is never shown again.")
              : qsTr("Make a key with analytics:read at DataFast. It is kept in your keyring, is sent to DataFast alone and is never shown again.")
    }
    Row {
        id: fields

        anchors.top: explanation.bottom
        anchors.topMargin: 12
        width: parent.width
        spacing: 12
        Field {
            id: key

            width: root.isStripe ? parent.width : (parent.width - 12) / 2
            focus: true
            iconName: "key"
            hint: qsTr("Key")
            name: hint
            echoMode: TextInput.Password
            error: root.model.refusal
            onAccepted: root.send()
        }
        Field {
            id: website

            visible: !root.isStripe
            width: (parent.width - 12) / 2
            text: root.model.website
            hint: qsTr("Id of the website")
            name: hint
            onAccepted: root.send()
        }
    }
    Row {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        spacing: 8
        PrimaryButton {
            busy: root.model.isConnecting
            text: qsTr("Connect")
            onClicked: root.send()
        }
        GhostButton {
            text: qsTr("Remove the key")
            enabled: !root.model.isConnecting
            onClicked: root.model.disconnectKey()
        }
    }
}
