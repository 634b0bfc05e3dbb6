// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"
#include "KestCore/Media/BrowserPlaybackScript.h"

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
    std::string track{}; // the path by which the player knows what it plays; empty: it has none
    double position{};   // seconds, like duration
    double duration{};
    double volume = 1;
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

// The one that the user means: by its name on the bus, by the name's first part, or by what it
// calls itself, whatever the case. Null: none. Of several, the first.
const Player *find(const std::vector<Player> &players, std::string_view wanted);

// Whether the player's new state shows that it has done what it was asked to.
bool hasFollowed(const Player &before, const Player &after, const Action &action);

} // namespace MediaPlayers
