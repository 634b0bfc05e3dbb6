// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QScreen>

#include <cstdint>

namespace Velvetnook
{

// The number under which the state remembers a screen: the same after a restart and after the
// screen was unplugged, as it comes from what the screen says of itself. Never 0.
inline std::uint32_t identityOf(const QScreen &screen)
{
    const QString parts[]{screen.manufacturer(), screen.model(), screen.serialNumber(),
                          screen.name()};
    std::uint32_t hash = 2'166'136'261U; // FNV-1a, which no update of a library changes
    for (const QString &part : parts) {
        for (const char byte : part.toUtf8() + '\n') {
            hash = (hash ^ static_cast<unsigned char>(byte)) * 16'777'619U;
        }
    }
    return hash == 0 ? 1 : hash;
}

} // namespace Velvetnook
