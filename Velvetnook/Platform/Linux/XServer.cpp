// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XServer.h"

#include "Velvetnook/Platform/Xcb.h"

#include <algorithm>
#include <string>

namespace Velvetnook
{

namespace
{

struct Disconnect {
    void operator()(xcb_connection_t *server) const { xcb_disconnect(server); }
};

xcb_window_t rootOf(xcb_connection_t *server, int screen)
{
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(server));
    for (; screen > 0 && roots.rem > 1; --screen) {
        xcb_screen_next(&roots);
    }
    return roots.data->root;
}

bool contains(const std::vector<std::uint32_t> &list, xcb_atom_t atom)
{
    return std::ranges::find(list, atom) != list.end();
}

} // namespace

void askXServer(SessionFacts &facts)
{
    int screen = 0;
    const std::unique_ptr<xcb_connection_t, Disconnect> held{xcb_connect(nullptr, &screen)};
    xcb_connection_t *server = held.get();
    facts.hasXServer = xcb_connection_has_error(server) == 0;
    if (!facts.hasXServer) {
        return;
    }
    const std::string compositor = "_NET_WM_CM_S" + std::to_string(screen);
    const auto owner =
        Xcb::reply(xcb_get_selection_owner_reply, server,
                   xcb_get_selection_owner(server, Xcb::atom(server, compositor)));
    facts.composites = owner && owner->owner != XCB_WINDOW_NONE;
    // A property that outlived its window manager names a window that is gone, or that does
    // not name itself.
    const xcb_window_t root = rootOf(server, screen);
    const xcb_atom_t check = Xcb::atom(server, "_NET_SUPPORTING_WM_CHECK");
    const auto manager = Xcb::values(server, root, check);
    if (manager.size() != 1 || Xcb::values(server, manager.front(), check) != manager) {
        return;
    }
    const std::string name =
        Xcb::text(server, manager.front(), Xcb::atom(server, "_NET_WM_NAME"));
    facts.windowManager = name.empty() ? QStringLiteral("?") : QString::fromStdString(name);
    const auto supported = Xcb::values(server, root, Xcb::atom(server, "_NET_SUPPORTED"));
    facts.tellsFullScreen = contains(supported, Xcb::atom(server, "_NET_ACTIVE_WINDOW")) &&
                            contains(supported, Xcb::atom(server, "_NET_WM_STATE_FULLSCREEN"));
}

} // namespace Velvetnook
