// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The weather at one place: now, the next hours and days; or why there is none.
FocusScope {
    id: root

    readonly property QtObject model: App.weather
    readonly property Component footerContent: page === "place" ? null : footer
    readonly property Item mainItem: body.item
    property string page: "hours" // or days, or place

    function takeKey(key) {
        switch (key) {
        case Qt.Key_R:
            model.refresh();
            return true;
        case Qt.Key_D:
            page = page === "days" ? "hours" : "days";
            return model.hasForecast;
        case Qt.Key_P:
            page = "place";
            return true;
        }
        return false;
    }

    KeyLetters { id: letters }

    implicitWidth: 600
    implicitHeight: 220
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Weather")
    Keys.onEscapePressed: event => {
        event.accepted = page !== "hours";
        page = "hours";
    }
    Keys.onPressed: event => {
        event.accepted = page !== "place" && event.modifiers === Qt.NoModifier
                         && (letters.isHeld(event) || takeKey(letters.keyOf(event)));
    }
    Component.onDestruction: App.weather.isShown = false

    Binding {
        target: App.weather
        property: "isShown"
        value: root.visible && App.panel.isOpen
    }
    Loader {
        id: body

        anchors.fill: parent
        focus: true
        onLoaded: {
            item.focus = true;
            if (root.activeFocus) {
                item.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
        sourceComponent: root.page === "place" ? places
                       : root.model.hasForecast ? forecast
                       : root.model.availability === "loading" ? loading : missing
    }
    Component {
        id: forecast

        WeatherForecast {
            showsDays: root.page === "days"
            onDaysWanted: on => root.page = on ? "days" : "hours"
            onPlaceWanted: root.page = "place"
        }
    }
    Component {
        id: places

        WeatherPlacePage {
            onDone: root.page = "hours"
        }
    }
    Component {
        id: loading

        WeatherBlocks {}
    }
    Component {
        id: missing

        AvailabilityView {
            readonly property bool isUnset: availability === "unconfigured"

            availability: root.model.availability
            iconName: isUnset ? "place" : availability === "permissionDenied" ? "net" : ""
            message: root.model.message
            note: root.model.note
            primaryText: isUnset ? qsTr("Choose a city")
                       : availability === "permissionDenied" ? qsTr("Allow") : qsTr("Try again")
            secondaryText: isUnset ? "" : qsTr("Another place…")
            onPrimary: {
                if (isUnset) {
                    root.page = "place";
                } else if (availability === "permissionDenied") {
                    root.model.isAllowed = true;
                } else {
                    root.model.refresh();
                }
            }
            onSecondary: root.page = "place"
        }
    }
    Component {
        id: footer

        FreshnessFooter {
            text: root.model.footer
            hasDot: root.model.hasForecast
            isStale: root.model.availability === "stale"
            source: root.model.hasForecast ? qsTr("Data from MET Norway") : ""
            linkText: root.model.hasForecast && root.model.canRefresh ? qsTr("Refresh") : ""
            onLinkClicked: root.model.refresh()
        }
    }
}
