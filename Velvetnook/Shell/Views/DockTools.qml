// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Adds one of the tools.
FocusScope {
    id: root

    signal done

    function takeFocus(reason) {
        (rows.itemAt(0) ?? head.main).forceActiveFocus(reason);
    }

    DockPageHead {
        id: head

        width: parent.width
        title: qsTr("Tools")
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
                id: rows

                model: App.dock.toolChoices
                delegate: ListRow {
                    required property var modelData
                    required property int index

                    width: column.width
                    title: modelData.title
                    iconName: modelData.icon
                    Keys.onDownPressed: rows.itemAt(index + 1)?.forceActiveFocus(Qt.TabFocusReason)
                    Keys.onUpPressed: (rows.itemAt(index - 1) ?? head.main)
                                      .forceActiveFocus(Qt.TabFocusReason)
                    onClicked: {
                        App.dock.addTool(modelData.tool);
                        root.done();
                    }
                }
            }
        }
    }
}
