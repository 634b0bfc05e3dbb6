// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import QtQuick.Shapes
import Velvetnook.Application
import Velvetnook.Shell

// A desktop with the strip at its top edge and the pointer on it. A picture, the same in
// every reading direction.
Item {
    id: root

    implicitWidth: 400
    implicitHeight: 148
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("The strip at the top edge of a screen")

    Rectangle {
        anchors.fill: parent
        radius: 14
        color: Theme.isDark ? "#5B7068" : "#BCCAC3"
    }
    Hills { tone: Theme.isDark ? "#52665E" : "#AFBFB7"; crest: 62 }
    Hills { tone: Theme.isDark ? "#485C53" : "#A0B3A9"; crest: 92 }
    Hills { tone: Theme.isDark ? "#3E5249" : "#92A79C"; crest: 120 }
    Rectangle {
        x: 70
        width: 260
        height: 32
        color: Theme.color.strip
        radius: 13
        Rectangle {
            width: parent.width
            height: 16
            color: parent.color
        }
        ArabicText {
            anchors.centerIn: parent
            text: App.settings.appearance.sampleArabic
            pixelSize: 16
            byInk: true
            color: Theme.onStrip.text1
        }
    }
    Shape {
        x: 216
        y: 22
        width: 26
        height: 30
        antialiasing: true
        ShapePath {
            fillColor: "white"
            strokeColor: "#0B0D0C"
            strokeWidth: 1.5
            joinStyle: ShapePath.RoundJoin
            PathSvg { path: "M3 2v20l5.2-4.6 3.6 8.2 4-1.8-3.6-8 7-.6z" }
        }
    }
}
