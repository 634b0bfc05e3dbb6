// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
pragma ComponentBehavior: Bound
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Where the weather is wanted: the place of the prayer times, or a city of its own; and whether
// the forecast is asked for at all.
FocusScope {
    id: root

    readonly property QtObject places: App.weather.places

    signal done

    Component.onDestruction: places.search("")

    IconButton {
        id: back

        anchors.left: parent.left
        anchors.leftMargin: -8
        size: 30
        iconName: "left"
        name: qsTr("Back")
        onClicked: root.done()
    }
    Txt {
        anchors.left: back.right
        anchors.leftMargin: 6
        anchors.verticalCenter: back.verticalCenter
        role: "heading"
        text: qsTr("Place of the weather")
    }
    SecondaryButton {
        visible: root.places.hasOwn && root.places.prayerPlace !== ""
        anchors.right: parent.right
        small: true
        text: qsTr("As the prayer times: %1").arg(root.places.prayerPlace)
        onClicked: {
            root.places.followPrayer();
            root.done();
        }
    }
    Field {
        id: field

        y: 40
        width: parent.width
        focus: true
        iconName: "search"
        hint: qsTr("City")
        name: hint
        onEdited: text => root.places.search(text)
        onAccepted: {
            if (root.places.found.length > 0) {
                root.places.choose(0);
                root.done();
            }
        }
        Keys.onDownPressed: rows.itemAt(0)?.forceActiveFocus(Qt.TabFocusReason)
    }
    Txt {
        visible: text !== ""
        y: 88
        width: parent.width
        horizontalAlignment: Text.AlignHCenter
        color: Theme.color.text2
        text: root.places.findings
    }
    SettingsGroup {
        visible: root.places.found.length === 0 && root.places.findings === ""
        y: 96
        width: parent.width

        SettingsRow {
            title: qsTr("Ask MET Norway for the forecast")
            note: qsTr("While you look, over the network. It is told where, to about a kilometre, and nothing else.")
            Toggle {
                name: qsTr("Ask MET Norway for the forecast")
                checked: App.weather.isAllowed
                onToggled: checked => App.weather.isAllowed = checked
            }
        }
    }
    ScrollBody {
        visible: root.places.found.length > 0
        y: 82
        width: parent.width
        height: parent.height - y

        Column {
            width: parent.width
            Repeater {
                id: rows

                model: root.places.found
                delegate: ListRow {
                    required property var modelData
                    required property int index

                    width: root.width
                    iconName: "place"
                    title: modelData.title
                    trailingText: modelData.note
                    Keys.onUpPressed: (rows.itemAt(index - 1) ?? field).forceActiveFocus(Qt.TabFocusReason)
                    Keys.onDownPressed: rows.itemAt(index + 1)?.forceActiveFocus(Qt.TabFocusReason)
                    onClicked: {
                        root.places.choose(index);
                        root.done();
                    }
                }
            }
        }
    }
}
