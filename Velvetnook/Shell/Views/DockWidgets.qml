// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Which widgets stand at the foot of the workspace.
FocusScope {
    id: root

    signal done

    function takeFocus(reason) {
        head.main.forceActiveFocus(reason);
    }

    DockPageHead {
        id: head

        width: parent.width
        title: qsTr("Widgets")
        onDone: root.done()
    }
    ScrollBody {
        anchors.top: head.bottom
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        width: parent.width
        contentHeight: column.height

        Column {
            id: column

            width: parent.width
            Repeater {
                model: App.dock.widgetChoices.length // a list told anew would lose the focus
                delegate: ListRow {
                    id: row

                    required property int index

                    readonly property var choice: App.dock.widgetChoices[index]

                    width: column.width
                    title: choice.title
                    iconName: choice.icon
                    focusPolicy: Qt.NoFocus
                    onClicked: App.dock.setWidget(choice.tool, !choice.isOn)

                    Toggle {
                        name: row.choice.title
                        checked: row.choice.isOn
                        onToggled: checked => App.dock.setWidget(row.choice.tool, checked)
                    }
                }
            }
        }
    }
}
