// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <vector>

namespace Velvetnook
{

// What the keys of an X server's keyboard write.
class XKeyboard
{
public:
    static XKeyboard read(xcb_connection_t *server);

    // The key that writes it; 0 where none does.
    std::uint8_t keycodeOf(std::uint32_t keysym) const;
    // The modifier that Num Lock sets.
    std::uint16_t numLockMask(xcb_connection_t *server) const;

private:
    std::uint8_t m_first = 0;
    std::uint8_t m_width = 0; // keysyms a key
    std::vector<xcb_keysym_t> m_keysyms;
};

} // namespace Velvetnook
