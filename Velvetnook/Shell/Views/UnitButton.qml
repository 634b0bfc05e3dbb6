// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application
import Velvetnook.Shell

// The unit under a number, and the others of its category to choose from.
T.ComboBox {
    id: root

    property string unit
    property var units: [] // [{value, label}]
    property string name

    signal chosen(string unit)

    function show() {
        menu.open();
    }
    function step(by) {
        const next = units[units.findIndex(each => each.value === unit) + by];
        if (next) {
            chosen(next.value);
        }
    }

    implicitWidth: row.implicitWidth + 12
    implicitHeight: 28
    down: area.pressed && area.containsMouse
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.name: name
    Accessible.description: unit
    Keys.onReturnPressed: show()
    Keys.onSpacePressed: show()
    Keys.onUpPressed: step(-1)
    Keys.onDownPressed: step(1)
    Keys.onEnterPressed: show()
    Accessible.onPressAction: show()

    contentItem: Item {
        Row {
            id: row

            anchors.centerIn: parent
            spacing: 4
            Txt {
                role: "strong"
                color: Theme.color.text2
                text: root.unit
                Accessible.ignored: true
            }
            Icon {
                anchors.verticalCenter: parent.verticalCenter
                name: "down"
                size: 14
                color: Theme.color.text2
            }
        }
    }
    background: Rectangle {
        radius: 8
        color: root.down ? Theme.color.line2
             : root.hovered ? Theme.color.bg3 : Qt.alpha(Theme.color.bg3, 0)
        FocusRing { shown: root.visualFocus; corner: 8 }
    }

    MouseArea {
        id: area

        anchors.fill: parent
        onClicked: root.show()
    }
    PopupMenu {
        id: menu

        y: root.height - implicitHeight
        items: root.units.map(each => ({text: each.label, checked: each.value === root.unit}))
        onChosen: index => root.chosen(root.units[index].value)
    }
}
