// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MediaPlayers/Player.h"

#include <chrono>
#include <memory>

namespace MediaPlayers
{

// The players of this session, over MPRIS. Each call ends in bounded time. One thread.
class PlayerBus
{
public:
    PlayerBus() = default;
    virtual ~PlayerBus() = default;
    PlayerBus(const PlayerBus &) = delete;
    PlayerBus &operator=(const PlayerBus &) = delete;

    // Those that answer. One that does not within a second is passed over.
    [[nodiscard]] virtual Result<std::vector<Player>> players() = 0;
    // Asks the player to do it, if it can. Fails with unavailable when it refuses or does not
    // answer.
    [[nodiscard]] virtual Result<void> perform(const Player &player, const Action &action) = 0;
};

// The bus's library is loaded here, on first use and for the life of the process. Fails with
// unavailable where the module is missing or there is no session bus.
[[nodiscard]] Result<std::unique_ptr<PlayerBus>> open();

// Performs the action and says what the player is like after it. Many do it only after they
// have answered, so it is given some time to show.
[[nodiscard]] Result<Player>
performAndRead(PlayerBus &bus, const Player &player, const Action &action,
               std::chrono::milliseconds patience = std::chrono::milliseconds{500});

// What the module exports under the name kestOpenPlayerBus; the caller owns the bus. On failure
// null, and the reason in `error`.
using OpenPlayerBus = PlayerBus *(Base::KestError &error);

} // namespace MediaPlayers
