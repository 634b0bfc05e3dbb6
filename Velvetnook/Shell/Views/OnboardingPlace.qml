// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The third step: where the user is, with today's times as soon as that is known.
Item {
    id: root

    readonly property QtObject place: App.settings.place
    readonly property QtObject prayer: App.settings.prayer

    OnboardingHeading {
        id: heading

        width: parent.width
        title: qsTr("Prayer times for where you are")
        note: qsTr("Worked out on this computer, without the network.")
    }
    Item {
        id: choices

        anchors.left: parent.left
        anchors.right: times.left
        anchors.rightMargin: 28
        anchors.top: heading.bottom
        anchors.topMargin: 22
        anchors.bottom: parent.bottom

        PlaceSearch {
            id: search

            width: parent.width
            fieldHeight: 40
            iconName: "place"
            hintColor: root.place.isSet ? Theme.color.text1 : Theme.color.text3
            hint: root.place.isSet ? root.place.title : qsTr("Search for a city")
            results: found
            Component.onCompleted: forceActiveFocus()
        }
        Txt {
            id: where

            visible: root.place.isSet && !found.isFilled
            anchors.top: search.bottom
            anchors.topMargin: 10
            width: parent.width
            role: "note"
            color: Theme.color.text3
            text: root.place.coordinates
        }
        SettingsGroup {
            visible: !found.isFilled
            anchors.top: search.bottom
            anchors.topMargin: 44
            width: parent.width
            SettingsRow {
                title: qsTr("Method")
                note: root.prayer.methodNote
                Picker {
                    name: qsTr("Method")
                    options: root.prayer.methods
                    value: root.prayer.method
                    onChosen: value => root.prayer.method = value
                }
            }
            SettingsRow {
                title: qsTr("Asr")
                Segmented {
                    name: qsTr("Asr")
                    options: root.prayer.asrChoices
                    value: root.prayer.asr
                    onChosen: value => root.prayer.asr = value
                }
            }
        }
        ScrollBody {
            id: list

            visible: found.isFilled
            anchors.top: search.bottom
            anchors.topMargin: 8
            anchors.bottom: parent.bottom
            width: parent.width
            contentHeight: found.height

            PlaceResults {
                id: found

                width: list.width
            }
        }
    }
    OnboardingTimes {
        id: times

        anchors.right: parent.right
        anchors.top: choices.top
    }
}
