// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Settings: what this program is, and what the running desktop gives it.
Column {
    id: root

    readonly property QtObject page: App.settings.about

    SettingsGroup {
        SettingsRow {
            title: qsTr("Velvetnook")
            note: qsTr("A quiet place at the top of your screen")
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.color.text2
                text: qsTr("Version %1").arg(root.page.version)
            }
        }
        SettingsRow {
            title: qsTr("Licence")
            note: qsTr("© 2026 the Velvetnook developers")
            Txt {
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.color.text2
                text: qsTr("MIT")
            }
        }
        SettingsRow {
            title: qsTr("Privacy")
            note: qsTr("Counts and notes stay on this computer. Only what you switch on asks the network.")
        }
    }
    UpdateGroup {}
    SettingsGroup {
        visible: root.page.capabilities !== null
        title: qsTr("What this desktop offers")
        note: qsTr("The same list that “velvetnook --capabilities” prints.")
        Repeater {
            model: root.page.capabilities
            delegate: CapabilityRow {}
        }
    }
}
