// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/XApplications.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

// "instance\0class\0"; the class is what a program goes by.
std::optional<std::string> classOf(xcb_connection_t *server, xcb_window_t window)
{
    const std::string names = Xcb::text(server, window, XCB_ATOM_WM_CLASS);
    const std::string instance = names.c_str();
    std::string name;
    if (instance.size() + 1 < names.size()) {
        name = names.c_str() + instance.size() + 1;
    }
    name = name.empty() ? instance : name;
    return name.empty() ? std::nullopt : std::optional{std::move(name)};
}

xcb_window_t parentOf(xcb_connection_t *server, xcb_window_t window)
{
    const auto tree = Xcb::reply(xcb_query_tree_reply, server, xcb_query_tree(server, window));
    return tree ? tree->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
}

std::vector<std::uint32_t> windowsOfRoot(xcb_connection_t *server, xcb_window_t root,
                                         const char *property)
{
    return Xcb::values(server, root, Xcb::atom(server, property));
}

} // namespace

std::optional<std::string> applicationOf(xcb_connection_t *server, xcb_window_t root,
                                         xcb_window_t window)
{
    constexpr int kDeepest = 16;
    xcb_window_t at = window;
    for (int depth = 0; depth < kDeepest && at != XCB_WINDOW_NONE && at != root; ++depth) {
        if (auto name = classOf(server, at)) {
            return name;
        }
        at = parentOf(server, at);
    }
    // The upper bits of a window's number are those of its program's connection.
    const std::uint32_t program = ~xcb_get_setup(server)->resource_id_mask;
    for (const xcb_window_t other : windowsOfRoot(server, root, "_NET_CLIENT_LIST")) {
        if ((other & program) == (window & program)) {
            if (auto name = classOf(server, other)) {
                return name;
            }
        }
    }
    const auto front = windowsOfRoot(server, root, "_NET_ACTIVE_WINDOW");
    return front.empty() ? std::nullopt : classOf(server, front.front());
}

std::vector<std::string> runningApplications(xcb_connection_t *server, xcb_window_t root)
{
    std::vector<std::string> names;
    for (const xcb_window_t window : windowsOfRoot(server, root, "_NET_CLIENT_LIST")) {
        if (auto name = classOf(server, window)) {
            names.push_back(*std::move(name));
        }
    }
    std::ranges::sort(names);
    const auto twice = std::ranges::unique(names);
    names.erase(twice.begin(), twice.end());
    return names;
}

} // namespace Velvetnook
