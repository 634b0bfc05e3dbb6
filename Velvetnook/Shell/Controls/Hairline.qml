// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

// The one line of a view.
Rectangle {
    implicitWidth: parent ? parent.width : 0
    implicitHeight: 1
    color: Theme.color.line
}
