// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The first step: where the strip is.
Item {
    id: root

    OnboardingPicture {
        id: picture

        anchors.horizontalCenter: parent.horizontalCenter
        y: 4
    }
    OnboardingHeading {
        anchors.top: picture.bottom
        anchors.topMargin: 26
        width: parent.width
        centred: true
        title: qsTr("A quiet place at the top of your screen")
        note: qsTr("Rest the pointer on the strip and Velvetnook opens. Move away and it closes. Your counts and notes stay on this computer.")
    }
}
