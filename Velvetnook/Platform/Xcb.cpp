// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Xcb.h"

namespace Velvetnook::Xcb
{

namespace
{

// More than any list of windows or states holds, in units of four bytes.
constexpr std::uint32_t kLongestProperty = 4096;

Owned<xcb_get_property_reply_t> property(xcb_connection_t *server, xcb_window_t window,
                                         xcb_atom_t name)
{
    return reply(xcb_get_property_reply, server,
                 xcb_get_property(server, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                  kLongestProperty));
}

} // namespace

xcb_atom_t atom(xcb_connection_t *server, std::string_view name)
{
    const auto made =
        reply(xcb_intern_atom_reply, server,
              xcb_intern_atom(server, 0, static_cast<std::uint16_t>(name.size()), name.data()));
    return made ? made->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::vector<std::uint32_t> values(xcb_connection_t *server, xcb_window_t window,
                                  xcb_atom_t name)
{
    const auto found = property(server, window, name);
    if (!found || found->format != 32) {
        return {};
    }
    std::vector<std::uint32_t> list(
        static_cast<std::size_t>(xcb_get_property_value_length(found.get())) /
        sizeof(std::uint32_t));
    if (!list.empty()) {
        std::memcpy(list.data(), xcb_get_property_value(found.get()),
                    list.size() * sizeof(std::uint32_t));
    }
    return list;
}

std::string text(xcb_connection_t *server, xcb_window_t window, xcb_atom_t name)
{
    const auto found = property(server, window, name);
    if (!found || found->format != 8) {
        return {};
    }
    return {static_cast<const char *>(xcb_get_property_value(found.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(found.get()))};
}

} // namespace Velvetnook::Xcb
