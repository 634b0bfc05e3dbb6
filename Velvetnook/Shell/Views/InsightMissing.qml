// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Why there are no figures, and the way to them. The provider and the period can be changed
// here too: another one may have some.
FocusScope {
    id: root

    readonly property QtObject model: App.insights

    signal connectWanted

    InsightChoices {
        width: 286
    }
    AvailabilityView {
        readonly property bool isUnset: availability === "unconfigured"
        readonly property bool isRefused: availability === "permissionDenied"
        readonly property bool isEmpty: availability === "empty"

        anchors.fill: parent
        anchors.topMargin: 30
        focus: true
        availability: root.model.availability
        iconName: isUnset ? "key" : isEmpty ? "analytics" : ""
        message: root.model.message
        note: isUnset ? qsTr("Its key stays in your keyring and goes to nobody else.") : root.model.note
        primaryText: availability === "loading" ? ""
                   : isUnset ? qsTr("Connect…")
                   : isRefused ? qsTr("Connections…") : qsTr("Try again")
        secondaryText: availability === "loading" || isUnset ? ""
                     : isRefused ? qsTr("Try again") : qsTr("Connections…")
        onPrimary: {
            if (isUnset || isRefused) {
                root.connectWanted();
            } else {
                root.model.refresh();
            }
        }
        onSecondary: {
            if (isRefused) {
                root.model.refresh();
            } else {
                root.connectWanted();
            }
        }
    }
}
