// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Templates as T
import Velvetnook.Application

// One value out of a list that drops down. The list is a menu and not the template's own, which
// would take a value that its owner refuses.
T.ComboBox {
    id: root

    property var options: [] // [{value, label}]
    property var value
    property string name
    property bool lit: hovered
    property bool ringed: visualFocus

    signal chosen(var value)

    readonly property string text: at >= 0 ? options[at].label : ""
    readonly property int at: options.findIndex(option => option.value === value)

    function show() {
        list.open();
    }
    function move(by) {
        const next = at + by;
        if (next >= 0 && next < options.length) {
            chosen(options[next].value);
        }
    }

    implicitWidth: Math.min(260, label.implicitWidth + 44)
    implicitHeight: 32
    leftPadding: 12
    rightPadding: 10
    down: area.pressed && area.containsMouse
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Keys.onReturnPressed: show()
    Keys.onSpacePressed: show()
    Keys.onEnterPressed: show()
    Keys.onUpPressed: move(-1)
    Keys.onDownPressed: move(1)
    Accessible.name: name === "" ? text : name
    Accessible.description: text
    Accessible.onPressAction: show()

    contentItem: Item {
        Txt {
            id: label

            anchors.left: parent.left
            anchors.right: sign.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            role: "strong"
            color: root.enabled ? Theme.color.text1 : Theme.color.text4
            Accessible.ignored: true
        }
        Icon {
            id: sign

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            name: "updown"
            size: 14
            color: root.enabled ? Theme.color.text3 : Theme.color.text4
        }
    }
    background: Rectangle {
        radius: 10
        color: root.down ? Theme.color.line2
             : root.lit && root.enabled ? Theme.color.bg3 : Theme.color.bg2
        Behavior on color { enabled: root.visible; HoverFade {} }
        FocusRing { shown: root.ringed; corner: 10 }
    }

    MouseArea {
        id: area

        anchors.fill: parent
        onClicked: root.show()
    }
    PopupMenu {
        id: list

        y: root.height + 6
        width: Math.max(root.width, implicitWidth)
        items: root.options.map(option => ({text: option.label,
                                            checked: option.value === root.value}))
        onChosen: index => root.chosen(root.options[index].value)
    }
}
