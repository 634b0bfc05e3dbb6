// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"

#include <cstdint>
#include <optional>
#include <string>

namespace KestCore
{

// The tab that the user connected, and the port on which its browser lets itself be driven.
struct ConnectedTab {
    std::uint16_t port{};
    std::string tab{};

    bool operator==(const ConnectedTab &) const = default;
};

// Nothing while no tab is connected: no browser is asked unless the user has said so. Values
// that make no sense count as none.
std::optional<ConnectedTab> connectedTab(const Settings &settings);
void connectTab(Settings &settings, const ConnectedTab &tab);
void disconnectTab(Settings &settings);

// The player that was controlled last, by its name on the bus; empty: none was.
std::string lastPlayer(const Settings &settings);
void setLastPlayer(Settings &settings, std::string name);

} // namespace KestCore
