// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The question before a period of focus until a prayer, or before its revised deadline.
FocusScope {
    id: root

    Rectangle {
        anchors.centerIn: parent
        width: 440
        height: column.implicitHeight + 40
        radius: 18
        color: Theme.color.bg1
        Accessible.role: Accessible.Grouping
        Accessible.name: App.prayer.focusTitle

        Column {
            id: column

            x: 20
            y: 20
            width: parent.width - 40
            Txt {
                width: parent.width
                role: "heading"
                text: App.prayer.focusTitle
            }
            Item { width: 1; height: 6 }
            Row {
                width: parent.width
                spacing: 8
                Icon {
                    id: sign

                    visible: !App.prayer.canFocus
                    y: 2
                    name: "alert"
                    size: 16
                    color: Theme.color.danger
                }
                Txt {
                    width: parent.width - (sign.visible ? 24 : 0)
                    color: sign.visible ? Theme.color.danger : Theme.color.text2
                    wrapMode: Text.Wrap
                    text: App.prayer.focusBody
                }
            }
            Item { width: 1; height: 18 }
            Item {
                width: parent.width
                height: 36
                Row {
                    visible: !App.prayer.isReview
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    spacing: 8
                    Txt {
                        anchors.verticalCenter: parent.verticalCenter
                        role: "label"
                        color: Theme.color.text2
                        text: qsTr("Buffer")
                    }
                    Stepper {
                        name: qsTr("Buffer before the prayer")
                        from: 0
                        to: App.prayer.longestBuffer
                        step: 5
                        value: App.prayer.focusBuffer
                        text: App.prayer.focusBufferText
                        onMoved: value => App.prayer.setFocusBuffer(value)
                    }
                }
                Row {
                    anchors.right: parent.right
                    spacing: 8
                    SecondaryButton {
                        text: qsTr("Cancel")
                        onClicked: App.prayer.page = "day"
                    }
                    PrimaryButton {
                        focus: true
                        enabled: App.prayer.canFocus
                        text: App.prayer.isReview ? qsTr("Use this deadline") : qsTr("Start")
                        onClicked: App.prayer.acceptFocus()
                    }
                }
            }
        }
    }
}
