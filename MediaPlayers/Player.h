// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"
#include "KestCore/Media/BrowserPlaybackScript.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace MediaPlayers
{

using Action = KestCore::BrowserPlaybackScript::Action;
using Base::Of;
using Base::Result;

// A player as it describes itself on the bus. Nothing of it is to be trusted yet: a player
// may say that it is at a negative second, or nothing at all.
struct Player {
    enum class Status : std::uint8_t { playing, paused, stopped };

    std::string name{};     // on the bus, such as "firefox.instance_1_83"
    std::string identity{}; // for people, such as "Mozilla Firefox"
    Status status = Status::stopped;
    std::string title{};
    std::string artist{};
    std::string art{};   // the address of its picture; empty: there is none
    std::string track{}; // the path by which the player knows what it plays; empty: it has none
    double position{};   // seconds, like duration
    double duration{};
    double volume{}; // 0 to 1; not a number where the player does not tell it
    bool canSeek{};
    bool canNext{};
    bool canPrevious{};

    bool operator==(const Player &) const = default;
};
constexpr auto enumTexts(Of<Player::Status>)
{
    using enum Player::Status;
    return Base::EnumTexts<Player::Status, 3>{
        {{playing, "playing"}, {paused, "paused"}, {stopped, "stopped"}}};
}

// Brings it into the bounds that a playback has, as the script does for a web page.
KestCore::BrowserPlayback playbackOf(const Player &player);

// Those that play come first, then those that are paused; among equals the one that was
// controlled last, then by name. The bus itself does not know who was active last.
std::vector<Player> inOrder(std::vector<Player> players, std::string_view controlledLast);

// Whether it is a web browser, by its name on the bus.
bool isBrowser(const Player &player);

// Each thing that plays once, in the same order: a browser and its extension tell of the same
// page, and some programs stand on the bus for whichever player is active.
std::vector<Player> withoutDoubles(std::vector<Player> players);

// The one that the user means: by its name on the bus, by the name's first part, or by what it
// calls itself, whatever the case. An exact name on the bus wins. Null: none. Of several, the
// first.
const Player *find(const std::vector<Player> &players, std::string_view wanted);

// The place nearest to this one that is in the track.
inline double reachable(const Player &player, double seconds)
{
    constexpr double kLongest = 1e9;
    const double end = player.duration > 0 ? std::min(player.duration, kLongest) : kLongest;
    return std::clamp(seconds, 0.0, end);
}

// Whether the player says that it can do this at all; a number that is not finite asks for
// nothing. To play, to pause and to set the volume is tried in any case.
inline bool canDo(const Player &player, const Action &action)
{
    using Kind = Action::Kind;
    switch (action.kind) {
    case Kind::seek:
        return player.canSeek && std::isfinite(action.value);
    case Kind::volume:
        return std::isfinite(action.value);
    case Kind::next:
        return player.canNext;
    case Kind::previous:
        return player.canPrevious;
    case Kind::playPause:
        return true;
    case Kind::read:
        break;
    }
    return false;
}

// Whether the player's new state shows that it has done what it was asked to.
bool hasFollowed(const Player &before, const Player &after, const Action &action);

} // namespace MediaPlayers
