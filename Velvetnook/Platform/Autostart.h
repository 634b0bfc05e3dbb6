// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <cstdint>

namespace Velvetnook
{

// Whether the desktop starts Velvetnook when its user logs in.
class Autostart
{
public:
    enum class Standing : std::uint8_t {
        off,
        on,
        turnedOff // by the desktop's own settings, which is the user's word too
    };

    Autostart() = default;
    virtual ~Autostart() = default;
    Autostart(const Autostart &) = delete;
    Autostart &operator=(const Autostart &) = delete;

    virtual Standing standing() const = 0;
    // Fails with unavailable, in the system's words, and leaves things as they were.
    [[nodiscard]] virtual Base::Result<void> set(bool isOn) = 0;
};

} // namespace Velvetnook
