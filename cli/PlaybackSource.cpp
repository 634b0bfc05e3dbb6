// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/PlaybackSource.h"

#include "BrowserBridge/BrowserBridge.h"
#include "KestCore/Media/PlaybackSettings.h"
#include "MediaPlayers/PlayerBus.h"

#include <fmt/format.h>

#include <cmath>
#include <cstdio>

namespace Cli
{

namespace
{

using BrowserBridge::Bridge;
using KestCore::ConnectedTab;
using MediaPlayers::Player;
using Sourced = std::optional<SourcedPlayback>;

// What a connected tab came to. Where it cannot be reached at all, a player may still be.
struct TabOutcome {
    Sourced playback{};
    std::optional<KestError> unreachable{};
};

Result<TabOutcome> playInTab(const ConnectedTab &connected, const PlaybackAction &action)
{
    auto bridge = Bridge::open(connected.port);
    if (!bridge) {
        return TabOutcome{.unreachable = std::move(bridge).error()};
    }
    KEST_TRY(const bool isOpen, bridge->hasTab(connected.tab));
    if (!isOpen) {
        return TabOutcome{.unreachable = BrowserBridge::tabGone()};
    }
    KEST_TRY(auto playback, bridge->run(connected.tab, action));
    TabOutcome outcome;
    if (playback) {
        outcome.playback =
            SourcedPlayback{.playback = *std::move(playback), .source = "the connected tab"};
        using Status = Player::Status;
        outcome.playback->status =
            outcome.playback->playback.playing ? Status::playing : Status::paused;
    }
    return outcome;
}

Result<void> remember(const Session &session, const std::string &player)
{
    KEST_TRY(auto store, session.openStore());
    if (KestCore::lastPlayer(store.state().settings) == player) {
        return {};
    }
    return store.change([&](KestCore::NativeState &state) -> Result<void> {
        KestCore::setLastPlayer(state.settings, player);
        return {};
    });
}

SourcedPlayback sourced(const Player &player)
{
    return {.playback = MediaPlayers::playbackOf(player),
            .source = player.identity.empty() ? player.name : player.identity,
            .status = player.status,
            .isVolumeKnown = std::isfinite(player.volume)};
}

// The store is closed while players are asked, who may take their time.
Result<Sourced> playInPlayer(const Session &session, const PlaybackAction &action,
                             const std::optional<std::string> &wanted, std::string_view last)
{
    KEST_TRY(const auto bus, MediaPlayers::open());
    KEST_TRY(auto found, bus->players());
    const auto players = MediaPlayers::inOrder(std::move(found), last);
    const Player *player = players.empty() ? nullptr : &players.front();
    if (wanted) {
        player = MediaPlayers::find(players, *wanted);
        if (player == nullptr) {
            return std::unexpected(KestError::invalidData(fmt::format(
                "No player is called \"{}\"; kest playback players lists them", *wanted)));
        }
    }
    if (player == nullptr) {
        return std::nullopt;
    }
    if (action.kind == PlaybackAction::Kind::read) {
        return sourced(*player);
    }
    KEST_TRY(const Player now, MediaPlayers::performAndRead(*bus, *player, action));
    if (const auto kept = remember(session, player->name); !kept) {
        // The player has done it: to say that it failed would have it done twice.
        std::fprintf(stderr, "kest: %s\n", printable(kept.error().message).c_str());
    }
    return sourced(now);
}

} // namespace

Result<Sourced> playSomewhere(const Session &session, const PlaybackAction &action,
                              const std::optional<std::string> &player)
{
    KEST_TRY(const auto settings, storedSettings(session));
    const auto connected = KestCore::connectedTab(settings);
    TabOutcome tab;
    if (connected && !player) {
        KEST_TRY(tab, playInTab(*connected, action));
        if (tab.playback) {
            return std::move(tab.playback);
        }
    }
    auto played = playInPlayer(session, action, player, KestCore::lastPlayer(settings));
    const bool isNothing = !played || !*played;
    if (isNothing && tab.unreachable) {
        return std::unexpected(*std::move(tab.unreachable));
    }
    // A tab that is there and has no medium is an answer, whether or not there is a bus.
    return !played && connected && !player ? Result<Sourced>{std::nullopt} : std::move(played);
}

} // namespace Cli
