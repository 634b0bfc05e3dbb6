// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Small helps for talking to the X server.
namespace Velvetnook::Xcb
{

// Qt's own connection; null where Qt does not use an X server.
xcb_connection_t *connection();

struct Free {
    void operator()(void *memory) const { std::free(memory); }
};
template <class T>
using Owned = std::unique_ptr<T, Free>;

// Waits for the answer; null when the server refused, such as for a window that is gone.
template <class Reply, class Cookie>
Owned<Reply> reply(Reply *(*take)(xcb_connection_t *, Cookie, xcb_generic_error_t **),
                   xcb_connection_t *server, Cookie cookie)
{
    xcb_generic_error_t *refusal = nullptr;
    Owned<Reply> answer{take(server, cookie, &refusal)};
    const Owned<xcb_generic_error_t> freed{refusal};
    return answer;
}

xcb_atom_t atom(xcb_connection_t *server, std::string_view name);

// A property of 32-bit values, or of text; empty when it is not there.
std::vector<std::uint32_t> values(xcb_connection_t *server, xcb_window_t window,
                                  xcb_atom_t property);
std::string text(xcb_connection_t *server, xcb_window_t window, xcb_atom_t property);

} // namespace Velvetnook::Xcb
