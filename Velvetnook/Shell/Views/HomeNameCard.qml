// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The Name of the day.
Card {
    id: root

    interactive: true
    name: qsTr("Today’s Name: %1")
          .arg(App.home.nameTitle !== "" ? App.home.nameTitle : App.home.nameArabic)
    onClicked: {
        App.panel.openTool("names");
        App.names.open(App.home.nameId);
    }

    CardLabel {
        width: parent.width
        iconName: "names"
        text: qsTr("Today’s Name")
    }
    ArabicText {
        anchors.left: parent.left
        y: App.home.nameTitle !== "" ? 14 : 22
        text: App.home.nameArabic
        pixelSize: 24
        maximumWidth: parent.width
        Accessible.ignored: true
    }
    Txt {
        y: 61
        width: parent.width
        role: "note"
        text: App.home.nameTitle
        color: Theme.color.text2
        Accessible.ignored: true
    }
}
