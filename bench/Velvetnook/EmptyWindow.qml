// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
import QtQuick

Rectangle {
    width: 260
    height: 32
    color: "#0B0D0C"
}
