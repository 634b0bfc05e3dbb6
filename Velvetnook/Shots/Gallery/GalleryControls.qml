// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application
import Velvetnook.Shell

Column {
    padding: 34

    Row {
        x: 138
        spacing: 14
        Repeater {
            model: ["Rest", "Hover", "Pressed", "Focus", "Disabled"]
            delegate: Txt {
                required property string modelData

                width: 106
                role: "label"
                color: Theme.color.text3
                text: modelData
            }
        }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Primary"
        Item { width: 106; height: 36; PrimaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Finish" } }
        Item { width: 106; height: 36; PrimaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Finish"; lit: true } }
        Item { width: 106; height: 36; PrimaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Finish"; down: true } }
        Item { width: 106; height: 36; PrimaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Finish"; ringed: true } }
        Item { width: 106; height: 36; PrimaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Finish"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Secondary"
        Item { width: 106; height: 36; SecondaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Pause"; iconName: "pause"; iconSize: 17 } }
        Item { width: 106; height: 36; SecondaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Pause"; iconName: "pause"; iconSize: 17; lit: true } }
        Item { width: 106; height: 36; SecondaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Pause"; iconName: "pause"; iconSize: 17; down: true } }
        Item { width: 106; height: 36; SecondaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Pause"; iconName: "pause"; iconSize: 17; ringed: true } }
        Item { width: 106; height: 36; SecondaryButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Pause"; iconName: "pause"; iconSize: 17; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Ghost icon"
        Item { width: 106; height: 36; IconButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; iconName: "history"; name: "History" } }
        Item { width: 106; height: 36; IconButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; iconName: "history"; name: "History"; lit: true } }
        Item { width: 106; height: 36; IconButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; iconName: "history"; name: "History"; down: true } }
        Item { width: 106; height: 36; IconButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; iconName: "history"; name: "History"; ringed: true } }
        Item { width: 106; height: 36; IconButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; iconName: "history"; name: "History"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Ghost"
        Item { width: 106; height: 36; GhostButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Back" } }
        Item { width: 106; height: 36; GhostButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Back"; lit: true } }
        Item { width: 106; height: 36; GhostButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Back"; down: true } }
        Item { width: 106; height: 36; GhostButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Back"; ringed: true } }
        Item { width: 106; height: 36; GhostButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Back"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Danger"
        Item { width: 106; height: 36; DangerButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Reset" } }
        Item { width: 106; height: 36; DangerButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Reset"; lit: true } }
        Item { width: 106; height: 36; DangerButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Reset"; down: true } }
        Item { width: 106; height: 36; DangerButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Reset"; ringed: true } }
        Item { width: 106; height: 36; DangerButton { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "Reset"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Chip"
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "99" } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "99"; lit: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "99"; down: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "99"; ringed: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "99"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Chip, chosen"
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "33"; chosen: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "33"; chosen: true; lit: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "33"; chosen: true; down: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "33"; chosen: true; ringed: true } }
        Item { width: 106; height: 36; Chip { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; text: "33"; chosen: true; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Toggle, on"
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; checked: true; name: "Sound" } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; checked: true; name: "Sound"; lit: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; checked: true; name: "Sound"; pressed: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; checked: true; name: "Sound"; ringed: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; checked: true; name: "Sound"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Toggle, off"
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; name: "Sound" } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; name: "Sound"; lit: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; name: "Sound"; pressed: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; name: "Sound"; ringed: true } }
        Item { width: 106; height: 36; Toggle { anchors.verticalCenter: parent.verticalCenter; anchors.left: parent.left; name: "Sound"; enabled: false } }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Field"
        Field { width: 168; hint: "Search"; iconName: "search" }
        Field { width: 168; text: "lemon"; ringed: true }
        Field { width: 168; text: "0"; error: "Target must be between 1 and 1,000,000" }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Segmented"
        Segmented {
            options: [{value: 0, label: "Small"}, {value: 1, label: "Medium"}, {value: 2, label: "Large"}]
            value: 0
        }
        Picker { options: [{value: 60, label: "60 minutes"}]; value: 60 }
        Stepper { value: 5; text: "5 min" }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Slider"
        ValueSlider { value: 0.64 }
        ValueSlider { value: 0.64; lit: true }
        ValueSlider { value: 0.64; ringed: true }
    }
    GalleryRow {
        width: parent.width - 68
        title: "Progress"
        ProgressRing { value: 0.42; diameter: 40; thickness: 4 }
        ProgressBar4 { anchors.verticalCenter: parent.verticalCenter; value: 0.42 }
        BeadRing { diameter: 56; count: 21; target: 33 }
        Spinner { anchors.verticalCenter: parent.verticalCenter }
        PrimaryButton { text: "Send"; iconName: "enter"; busy: true }
        SecondaryButton { text: "Refresh"; iconName: "refresh"; busy: true; small: true }
    }
}
