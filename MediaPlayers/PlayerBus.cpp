// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/PlayerBus.h"

#include "Base/Module.h"

#include <algorithm>
#include <chrono>
#include <thread>

namespace MediaPlayers
{

namespace
{

using Base::KestError;

KestError missing(const std::string &reason)
{
    return KestError::unavailable("The part that speaks to players cannot be loaded: " +
                                  reason);
}

} // namespace

Result<std::unique_ptr<PlayerBus>> open()
{
    const auto symbol = Base::loadFromModule("KestMediaPlayers.so", "kestOpenPlayerBus");
    if (!symbol) {
        return std::unexpected(missing(symbol.error()));
    }
    KestError error;
    std::unique_ptr<PlayerBus> bus{reinterpret_cast<OpenPlayerBus *>(*symbol)(error)};
    if (bus == nullptr) {
        return std::unexpected(std::move(error));
    }
    return bus;
}

Result<Player> performAndRead(PlayerBus &bus, const Player &player, const Action &action,
                              std::chrono::milliseconds patience)
{
    using namespace std::chrono_literals;
    if (!canDo(player, action)) {
        return player;
    }
    KEST_CHECK(bus.perform(player, action));
    const auto end = std::chrono::steady_clock::now() + patience;
    while (true) {
        KEST_TRY(const auto players, bus.players());
        const auto now = std::ranges::find(players, player.name, &Player::name);
        if (now == players.end()) {
            return std::unexpected(KestError::unavailable("The player \"" + player.name +
                                                          "\" does not answer any more."));
        }
        if (hasFollowed(player, *now, action) || std::chrono::steady_clock::now() > end) {
            return *now;
        }
        std::this_thread::sleep_for(25ms);
    }
}

} // namespace MediaPlayers
