// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

// The whole notch: the strip that grows into the panel and back. It fills its window, which
// keeps to `windowSize`; what is drawn stands at the top centre.
Item {
    id: root

    required property QtObject driver
    property bool hasShadow: true // where windows are mixed, a shadow can be seen

    readonly property bool isOpen: driver.isOpen
    readonly property bool isShown: driver.state !== "hidden" && driver.state !== "suppressed"
    property real openness: isOpen ? 1 : 0
    property real contentOpacity: isOpen ? 1 : 0
    property real lightness: isOpen ? 1 : 0

    readonly property bool isMoving: openness > 0 && openness < 1
    property real stripWidth: strip.implicitWidth
    property real stripHeight: strip.implicitHeight
    readonly property size bodySize: Qt.size(2 * Math.round((stripWidth + (640 - stripWidth) * openness) / 2),
                                             Math.round(stripHeight + (320 - stripHeight) * openness))
    readonly property real bodyRadius: strip.radius + (Theme.radius.panel - strip.radius) * openness
    readonly property real bodyFillet: Theme.radius.stripFillet
        + (Theme.radius.panelFillet - Theme.radius.stripFillet) * openness

    // Around the body: the fillets, and where it can be seen the shadow or the glow.
    readonly property int shadowSide: !hasShadow ? 0
        : openness > 0 ? Theme.shadowReach("floating") : App.strip.isEmphasised ? 30 : 0
    readonly property int side: Math.max(Theme.radius.panelFillet, shadowSide)
    readonly property size windowSize: openness > 0
        ? Qt.size(640 + 2 * side, 320 + shadowSide)
        : Qt.size(bodySize.width + 2 * side, bodySize.height + shadowSide)

    signal placeWanted

    onBodySizeChanged: placeWanted()
    onWindowSizeChanged: placeWanted()
    onBodyRadiusChanged: placeWanted()
    onIsShownChanged: placeWanted()

    Behavior on openness {
        enabled: !Theme.reducedMotion
        NumberAnimation {
            duration: root.isOpen ? Theme.motion.open : Theme.motion.close
            easing.type: Easing.BezierSpline
            easing.bezierCurve: root.isOpen ? Theme.motion.settle : Theme.motion.standard
        }
    }
    Behavior on contentOpacity {
        SequentialAnimation {
            PauseAnimation { duration: root.isOpen && !Theme.reducedMotion ? 100 : 0 }
            NumberAnimation {
                duration: Theme.reducedMotion ? 100 : root.isOpen ? Theme.motion.fade : 80
                easing.type: Easing.BezierSpline
                easing.bezierCurve: Theme.motion.standard
            }
        }
    }
    Behavior on lightness {
        NumberAnimation { duration: Theme.reducedMotion ? 0 : 120 }
    }
    Behavior on stripWidth {
        enabled: root.visible && !Theme.reducedMotion
        NumberAnimation {
            duration: Theme.motion.hover
            easing.type: Easing.BezierSpline
            easing.bezierCurve: Theme.motion.settle
        }
    }

    Item {
        id: body

        anchors.horizontalCenter: parent.horizontalCenter
        width: root.bodySize.width
        height: root.bodySize.height

        PanelFrame {
            anchors.fill: parent
            visible: root.isShown
            hasShadow: root.hasShadow && root.openness > 0
            radius: root.bodyRadius
            fillet: root.bodyFillet
            lightness: root.lightness
        }
        StripSurface {
            id: strip

            anchors.horizontalCenter: parent.horizontalCenter
            width: implicitWidth
            height: implicitHeight
            hasFrame: false
            view: root.driver.isPressed ? "pressed" : root.isOpen ? "compact" : root.driver.state
            opacity: 1 - Math.min(1, root.openness * 4)
            visible: opacity > 0
        }
        Item {
            anchors.fill: parent
            clip: root.isMoving
            visible: root.isOpen || root.contentOpacity > 0
            opacity: root.contentOpacity

            Loader {
                id: panel

                anchors.horizontalCenter: parent.horizontalCenter
                width: 640
                height: 320
                focus: true
                active: root.driver.isPrepared || root.driver.state === "hoverOpening" || root.isOpen
                // By its name: one that stood here would be compiled before the strip is shown.
                Component.onCompleted: setSource("PanelSurface.qml", {"hasFrame": false})
            }
        }
    }
    Binding {
        target: panel.item
        property: "hasKeys"
        value: root.isOpen
    }
    Connections {
        target: root.driver
        function onOpened(isSticky) {
            if (isSticky && panel.item) {
                panel.item.focusView();
            }
        }
    }
}
