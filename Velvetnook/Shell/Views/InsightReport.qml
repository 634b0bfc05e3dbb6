// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The one figure large with its chart, and all of them beside it.
FocusScope {
    id: root

    readonly property QtObject model: App.insights
    readonly property bool isStale: model.availability === "stale"
    readonly property color first: isStale ? Theme.color.text2 : Theme.color.text1

    InsightChoices {
        id: choices

        anchors.left: parent.left
        width: 286
    }
    Txt {
        anchors.left: parent.left
        y: 40
        width: 286
        horizontalAlignment: Text.AlignLeft // mirrored with the layout
        role: "label"
        color: Theme.color.text2
        text: root.model.headline.label ?? ""
    }
    Txt {
        anchors.left: parent.left
        y: 56
        width: 286
        horizontalAlignment: Text.AlignLeft
        role: "numeralLarge"
        pixelSize: text.length > 11 ? 34 : 44
        lineHeight: 50
        color: root.first
        text: root.model.headline.value ?? ""
    }
    ChoiceChip {
        visible: root.model.currencies.length > 1
        anchors.right: choices.right
        y: 36
        name: qsTr("Currency")
        options: root.model.currencies
        value: root.model.currency
        onValueChosen: value => root.model.currency = value
    }
    InsightBars {
        anchors.left: parent.left
        y: 122
        width: 286
        height: 82
        ink: root.isStale ? Theme.color.text3 : Theme.color.accent
    }
    ScrollBody {
        anchors.left: choices.right
        anchors.leftMargin: 24
        anchors.right: parent.right
        height: parent.height
        focus: true
        contentHeight: rows.height

        Column {
            id: rows

            width: 290
            Repeater {
                model: root.model.figures
                delegate: InsightRow {
                    required property var modelData

                    width: rows.width
                    label: modelData.label
                    value: modelData.value
                    detail: modelData.detail
                    ink: root.first
                }
            }
            Txt {
                topPadding: 10
                width: parent.width
                horizontalAlignment: Text.AlignLeft
                role: "note"
                lineHeight: 16
                wrapMode: Text.Wrap
                color: Theme.color.text3
                text: root.model.notice
            }
            Repeater {
                model: root.model.lists
                delegate: InsightList {
                    required property var modelData

                    width: rows.width
                    title: modelData.title
                    entries: modelData.rows
                    ink: root.first
                }
            }
        }
    }
}
