// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"
#include "MediaPlayers/Player.h"

#include <string>
#include <vector>

// What the commands of playback answer with, beside the playback itself.
namespace Cli
{

namespace json = Base::json;
using Base::Of;

// One player of playback players.
struct PlayerAnswer {
    std::string name{};
    std::string identity{};
    MediaPlayers::Player::Status status{};
    KestCore::BrowserPlayback playback{};
};
consteval auto jsonFields(Of<PlayerAnswer>)
{
    using R = PlayerAnswer;
    return std::tuple{json::Field{"name", &R::name}, json::Field{"identity", &R::identity},
                      json::Field{"status", &R::status}, json::Field{"playback", &R::playback}};
}
static_assert(json::coversAllMembers<PlayerAnswer>());

// One tab of playback tabs, connect and disconnect.
struct TabAnswer {
    std::string id{};
    std::string title{};
    std::string url{};
    bool connected{};
};
consteval auto jsonFields(Of<TabAnswer>)
{
    using R = TabAnswer;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"title", &R::title},
                      json::Field{"url", &R::url}, json::Field{"connected", &R::connected}};
}
static_assert(json::coversAllMembers<TabAnswer>());

// "1:02:03" or "3:07", whole seconds.
std::string playingTime(double seconds);

} // namespace Cli
