// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XServer.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Velvetnook
{

namespace
{

struct Release {
    void operator()(xcb_connection_t *connection) const { xcb_disconnect(connection); }
};
struct Free {
    void operator()(void *reply) const { std::free(reply); }
};
template <class T>
using Reply = std::unique_ptr<T, Free>;

class Server
{
public:
    Server() : m_connection{xcb_connect(nullptr, &m_screen)} {}

    bool isThere() const { return xcb_connection_has_error(m_connection.get()) == 0; }
    int screen() const { return m_screen; }

    xcb_window_t root() const
    {
        auto screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
        for (int skipped = 0; skipped < m_screen && screens.rem > 1; ++skipped) {
            xcb_screen_next(&screens);
        }
        return screens.data->root;
    }

    xcb_atom_t atom(std::string_view name) const
    {
        const Reply<xcb_intern_atom_reply_t> reply{xcb_intern_atom_reply(
            m_connection.get(),
            xcb_intern_atom(m_connection.get(), 0, static_cast<std::uint16_t>(name.size()),
                            name.data()),
            nullptr)};
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    std::string property(xcb_window_t window, std::string_view name) const
    {
        constexpr std::uint32_t kMostWords = 4096;
        const Reply<xcb_get_property_reply_t> reply{
            xcb_get_property_reply(m_connection.get(),
                                   xcb_get_property(m_connection.get(), 0, window, atom(name),
                                                    XCB_ATOM_ANY, 0, kMostWords),
                                   nullptr)};
        if (!reply) {
            return {};
        }
        return {static_cast<const char *>(xcb_get_property_value(reply.get())),
                static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
    }

    bool hasOwner(std::string_view selection) const
    {
        const Reply<xcb_get_selection_owner_reply_t> reply{xcb_get_selection_owner_reply(
            m_connection.get(), xcb_get_selection_owner(m_connection.get(), atom(selection)),
            nullptr)};
        return reply && reply->owner != XCB_WINDOW_NONE;
    }

private:
    int m_screen = 0;
    std::unique_ptr<xcb_connection_t, Release> m_connection;
};

// A property of numbers, such as atoms or windows.
std::vector<std::uint32_t> numbersIn(const std::string &property)
{
    std::vector<std::uint32_t> numbers(property.size() / sizeof(std::uint32_t));
    std::copy_n(property.data(), numbers.size() * sizeof(std::uint32_t),
                reinterpret_cast<char *>(numbers.data()));
    return numbers;
}

} // namespace

void askXServer(SessionFacts &facts)
{
    const Server server;
    facts.hasXServer = server.isThere();
    if (!facts.hasXServer) {
        return;
    }
    facts.composites = server.hasOwner("_NET_WM_CM_S" + std::to_string(server.screen()));
    // A property that outlived its window manager names a window that is gone, or that does
    // not name itself.
    const auto manager = numbersIn(server.property(server.root(), "_NET_SUPPORTING_WM_CHECK"));
    if (manager.size() != 1 ||
        numbersIn(server.property(manager.front(), "_NET_SUPPORTING_WM_CHECK")) != manager) {
        return;
    }
    const std::string name = server.property(manager.front(), "_NET_WM_NAME");
    facts.windowManager = name.empty() ? QStringLiteral("?") : QString::fromStdString(name);
    const auto supported = numbersIn(server.property(server.root(), "_NET_SUPPORTED"));
    facts.keepsAbove =
        std::ranges::find(supported, server.atom("_NET_WM_STATE_ABOVE")) != supported.end();
}

} // namespace Velvetnook
