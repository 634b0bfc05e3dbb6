// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The prayer times: today as a picture, the week and the month as tables, and the way to a
// period of focus.
FocusScope {
    id: root

    readonly property bool isDay: App.prayer.page === "day"
    readonly property string footerText: !App.prayer.hasPlace ? ""
        : isDay && App.prayer.isFocusing ? App.prayer.focusState : App.prayer.note
    readonly property string footerIcon: footerText === App.prayer.note && footerText !== "" ? "info" : ""
    readonly property Component footerContent: App.prayer.hasPlace ? footerEnd : null
    readonly property Item mainItem: page.item
    readonly property bool isSeen: visible && App.panel.isOpen

    function show(wanted) {
        App.prayer.page = wanted;
    }
    function goBack(event) {
        event.accepted = !root.isDay;
        root.show("day");
    }

    KeyLetters { id: letters }

    Keys.onEscapePressed: event => goBack(event)
    Keys.onPressed: event => {
        const pages = ({[Qt.Key_D]: "day", [Qt.Key_W]: "week", [Qt.Key_M]: "month"});
        const key = letters.keyOf(event);
        if (!App.prayer.hasPlace || event.modifiers !== Qt.NoModifier) {
            return;
        }
        if (pages[key] !== undefined) {
            root.show(pages[key]);
            event.accepted = true;
        } else if (key === Qt.Key_F && App.prayer.focusLink !== "") {
            App.prayer.askFocus();
            event.accepted = true;
        }
    }
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Prayer times")

    Component.onDestruction: App.prayer.watched = false

    Binding {
        target: App.prayer
        property: "watched"
        value: root.isSeen
    }
    Connections {
        target: App.prayer
        function onFocusStarted() {
            App.panel.showMessage(App.prayer.focusState);
        }
    }
    Loader {
        id: page

        anchors.fill: parent
        focus: true
        sourceComponent: !App.prayer.hasPlace ? noPlace : root.isDay ? day
                       : App.prayer.page === "focus" ? focusPage : table
    }

    Component {
        id: day

        PrayerDay {}
    }
    Component {
        id: table

        PrayerTablePage {}
    }
    Component {
        id: focusPage

        PrayerFocusPage {}
    }
    Component {
        id: noPlace

        AvailabilityView {
            availability: "unconfigured"
            iconName: "place"
            message: App.prayer.message
            primaryText: qsTr("Choose a place…")
            onPrimary: App.settings.open("prayer")
        }
    }
    Component {
        id: footerEnd

        Row {
            spacing: 14
            Txt {
                // What is told of the focus needs the whole line.
                visible: !(root.isDay && App.prayer.isFocusing)
                anchors.verticalCenter: parent.verticalCenter
                role: "note"
                color: Theme.color.text3
                text: App.prayer.islamicDate
            }
            FooterLink {
                visible: text !== "" && App.prayer.page !== "focus"
                anchors.verticalCenter: parent.verticalCenter
                text: App.prayer.focusLink
                onClicked: App.prayer.askFocus()
            }
        }
    }
}
