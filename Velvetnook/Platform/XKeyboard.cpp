// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/XKeyboard.h"

#include "Velvetnook/Platform/Xcb.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr std::uint32_t kNumLock = 0xFF7F; // its keysym

} // namespace

XKeyboard XKeyboard::read(xcb_connection_t *server)
{
    const xcb_setup_t *setup = xcb_get_setup(server);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto reply = Xcb::reply(xcb_get_keyboard_mapping_reply, server,
                                  xcb_get_keyboard_mapping(server, setup->min_keycode, count));
    XKeyboard keyboard;
    if (reply) {
        const xcb_keysym_t *begin = xcb_get_keyboard_mapping_keysyms(reply.get());
        keyboard.m_first = setup->min_keycode;
        keyboard.m_width = reply->keysyms_per_keycode;
        keyboard.m_keysyms = {begin,
                              begin + xcb_get_keyboard_mapping_keysyms_length(reply.get())};
    }
    return keyboard;
}

std::uint8_t XKeyboard::keycodeOf(std::uint32_t keysym) const
{
    const auto found = std::ranges::find(m_keysyms, keysym);
    return found == m_keysyms.end() || m_width == 0
               ? std::uint8_t{0}
               : static_cast<std::uint8_t>(m_first + (found - m_keysyms.begin()) / m_width);
}

// On most keyboards it is the second, which also holds where the server does not tell.
std::uint16_t XKeyboard::numLockMask(xcb_connection_t *server) const
{
    const std::uint8_t key = keycodeOf(kNumLock);
    const auto reply =
        Xcb::reply(xcb_get_modifier_mapping_reply, server, xcb_get_modifier_mapping(server));
    if (!reply || key == 0) {
        return XCB_MOD_MASK_2;
    }
    const xcb_keycode_t *codes = xcb_get_modifier_mapping_keycodes(reply.get());
    const int width = reply->keycodes_per_modifier;
    for (int index = 0; index < 8 * width; ++index) {
        if (codes[index] == key) {
            return static_cast<std::uint16_t>(1U << static_cast<unsigned>(index / width));
        }
    }
    return XCB_MOD_MASK_2;
}

} // namespace Velvetnook
