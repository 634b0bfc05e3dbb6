// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick
import Velvetnook.Application

Rectangle {
    implicitWidth: 640
    implicitHeight: 320
    color: Theme.color.bg0
}
