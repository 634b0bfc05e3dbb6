// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// Every control in every state, for the pictures only.
Rectangle {
    id: root

    property string view: "controls"

    implicitWidth: 790
    implicitHeight: loader.item ? loader.item.implicitHeight : 100
    color: Theme.color.bg0
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Loader {
        id: loader

        anchors.left: parent.left
        anchors.right: parent.right
        source: ({controls: "GalleryControls.qml", states: "GalleryStates.qml",
                  more: "GalleryMore.qml", rings: "GalleryRings.qml",
                  arabic: "GalleryArabic.qml"})[root.view]
    }
}
