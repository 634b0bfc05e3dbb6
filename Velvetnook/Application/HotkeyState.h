// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdint>

namespace Velvetnook
{

// How far the palette's key works.
struct HotkeyState {
    enum class Level : std::uint8_t {
        untried, // nobody has asked the session for it yet
        full,
        degraded,
        off
    };

    Level level = Level::untried;
    QString reason{}; // why it does not work everywhere, and what can be done

    bool operator==(const HotkeyState &) const = default;
};

} // namespace Velvetnook
