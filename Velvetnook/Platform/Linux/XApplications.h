// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Xcb.h"

#include <optional>
#include <string>
#include <vector>

// Applications, by the class that their windows name.
namespace Velvetnook
{

// The application of this window, which may be a hidden one without a name: then another window
// of the same program tells, else the window in front.
std::optional<std::string> applicationOf(xcb_connection_t *server, xcb_window_t root,
                                         xcb_window_t window);

// Each once, in the order of their names.
std::vector<std::string> runningApplications(xcb_connection_t *server, xcb_window_t root);

} // namespace Velvetnook
