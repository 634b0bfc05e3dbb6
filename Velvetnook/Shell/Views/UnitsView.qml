// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The unit converter: a category, a number with its unit, and what it is in another.
FocusScope {
    id: root

    readonly property QtObject model: App.units
    readonly property Item mainItem: from
    readonly property string footerText: qsTr("Up to 12 significant digits")
    readonly property var footerKeys: [{key: qsTr("Tab"), text: qsTr("next field")},
                                       {key: "X", text: qsTr("swap")},
                                       {key: qsTr("Enter"), text: qsTr("copy result")}]

    function copy() {
        if (model.copy()) {
            App.panel.showMessage(qsTr("Copied %1").arg(model.result));
        }
    }

    implicitWidth: 600
    implicitHeight: 220
    onVisibleChanged: if (!visible) { model.leave(); }
    Component.onDestruction: model.leave()
    Keys.onPressed: event => {
        if (event.text.toLowerCase() === "x" && !from.activeFocus) {
            event.accepted = true;
            model.swap();
        }
    }

    Row {
        id: categories

        spacing: 6
        Repeater {
            model: root.model.categories
            delegate: Chip {
                required property var modelData

                horizontalPadding: 11
                text: modelData.label
                chosen: root.model.category === modelData.value
                onClicked: root.model.category = modelData.value
            }
        }
    }
    UnitBox {
        id: from

        anchors.left: parent.left
        y: 44
        width: (parent.width - 56) / 2
        label: qsTr("From")
        editable: true
        focus: true
        text: root.model.text
        unit: root.model.from
        units: root.model.units
        onEdited: text => root.model.text = text
        onAccepted: root.copy()
        onUnitChosen: unit => root.model.from = unit
    }
    IconButton {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 44 + 38
        size: 36
        corner: 18
        filled: true
        iconName: "swap"
        name: qsTr("Swap the units")
        keyHint: "X"
        onClicked: root.model.swap()
    }
    UnitBox {
        anchors.right: parent.right
        y: 44
        width: (parent.width - 56) / 2
        label: qsTr("To")
        text: root.model.result
        refusal: root.model.refusal
        unit: root.model.to
        units: root.model.units
        onUnitChosen: unit => root.model.to = unit
    }
    RecentConversions {
        y: 172
        width: parent.width
    }
}
