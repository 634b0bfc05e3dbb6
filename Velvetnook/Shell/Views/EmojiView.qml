// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The emoji in their groups, with those used before, and a search by their names.
FocusScope {
    id: root

    readonly property QtObject model: App.emoji
    readonly property Item mainItem: grid
    readonly property string footerText: grid.currentItem ? grid.currentItem.name : ""
    readonly property var footerKeys: [
        {key: "←↑↓→", text: qsTr("move")},
        {key: qsTr("Enter"), text: model.pastes ? qsTr("paste") : qsTr("copy")},
        {key: "P", text: qsTr("pin")}]

    function act(event) {
        const key = letters.keyOf(event);
        const isPlain = !(event.modifiers & (Qt.ControlModifier | Qt.AltModifier
                                             | Qt.MetaModifier));
        const at = grid.currentIndex;
        event.accepted = true;
        if ((event.modifiers & Qt.ControlModifier) && key === Qt.Key_C) {
            model.copy(at);
        } else if (!isPlain || letters.isHeld(event)) {
            event.accepted = false;
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            model.use(at);
        } else if (key === Qt.Key_P) {
            model.togglePin(at);
        } else if (key === Qt.Key_T || event.key === Qt.Key_Menu) {
            openTones(at);
        } else if (event.key === Qt.Key_Slash) {
            search.forceActiveFocus(Qt.ShortcutFocusReason);
            search.selectAll();
        } else if (event.key === Qt.Key_Home || event.key === Qt.Key_End) {
            grid.currentIndex = event.key === Qt.Key_Home ? 0 : grid.count - 1;
        } else {
            event.accepted = false;
        }
    }
    function openTones(index) {
        const tones = model.tonesOf(index);
        if (tones.length === 0) {
            return;
        }
        grid.currentIndex = index;
        oneOff.forms = tones;
        const cell = grid.currentItem;
        oneOff.popup(grid.x + cell.x, grid.y + cell.y - grid.contentY + 20);
    }

    implicitWidth: 600
    implicitHeight: 220
    Component.onDestruction: model.setShown(false)
    QtObject {
        readonly property bool isShown: root.visible && root.Window.visibility !== Window.Hidden

        onIsShownChanged: root.model.setShown(isShown)
        Component.onCompleted: root.model.setShown(isShown)
    }
    KeyLetters { id: letters }

    Field {
        id: search

        anchors.left: parent.left
        width: 240
        iconName: "search"
        hint: qsTr("Search emoji")
        text: root.model.query
        onEdited: text => root.model.query = text
        onAccepted: grid.forceActiveFocus(Qt.TabFocusReason)
        Keys.onDownPressed: grid.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEscapePressed: event => {
            event.accepted = root.model.query !== "";
            root.model.query = "";
        }
    }
    IconButton {
        id: tone

        anchors.left: search.right
        anchors.leftMargin: 8
        size: 34
        name: qsTr("Skin tone")
        onClicked: tones.popup(x, y + 38)
        Text {
            anchors.centerIn: parent
            text: root.model.hand
            font.family: "Noto Color Emoji"
            font.pixelSize: 17
            textFormat: Text.PlainText
            Accessible.ignored: true
        }
    }
    Row {
        anchors.right: parent.right
        spacing: 8
        Repeater {
            model: root.model.groups
            delegate: IconButton {
                required property var modelData
                readonly property bool isChosen: root.model.query === ""
                                                 && root.model.group === modelData.value

                size: 34
                iconName: modelData.icon
                iconSize: 18
                name: modelData.label
                filled: isChosen
                ink: isChosen ? Theme.color.accent : Theme.color.text2
                Accessible.checkable: true
                Accessible.checked: isChosen
                onClicked: root.model.group = modelData.value
            }
        }
    }
    GridView {
        id: grid

        x: LayoutMirroring.enabled ? -2 : 0
        y: 46
        width: parent.width + 2
        height: parent.height - 46 + 6
        focus: true
        activeFocusOnTab: true
        cellWidth: 602 / 12
        cellHeight: 58
        cacheBuffer: 0
        clip: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        highlightMoveDuration: 0
        model: root.model.list
        Keys.onPressed: event => root.act(event)
        onCountChanged: currentIndex = count > 0 ? 0 : -1
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Emoji")

        delegate: EmojiCell {
            width: grid.cellWidth
            height: grid.cellHeight
            selected: GridView.isCurrentItem
            onClicked: {
                grid.currentIndex = index;
                grid.forceActiveFocus(Qt.MouseFocusReason);
                root.model.copy(index);
            }
            onTonesWanted: root.openTones(index)
        }
    }
    Txt {
        visible: text !== ""
        y: 58
        width: parent.width
        role: "note"
        color: Theme.color.text3
        text: root.model.findings
    }
    PopupMenu {
        id: tones

        items: root.model.tones.map(each => ({text: each.text + "  " + each.label,
                                              checked: each.value === root.model.tone}))
        onChosen: index => root.model.tone = root.model.tones[index].value
    }
    PopupMenu {
        id: oneOff

        property var forms: []

        items: forms.map((each, at) => ({text: each.text + "  " + root.model.tones[at].label}))
        onChosen: index => root.model.copyToned(grid.currentIndex, forms[index].value)
    }
}
