// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"
#include "KestCore/Media/BrowserPlaybackScript.h"
#include "MediaPlayers/Player.h"
#include "cli/Session.h"

#include <optional>
#include <string>

namespace Cli
{

using PlaybackAction = KestCore::BrowserPlaybackScript::Action;

// What plays, and where, for people.
struct SourcedPlayback {
    KestCore::BrowserPlayback playback{};
    std::string source{};
    MediaPlayers::Player::Status status{};
    bool isVolumeKnown = true;
};

// Does the action where the user means it and says what plays there then: in the player with
// this name, if one is named; else in the connected tab, if it has a medium; else in the first
// player. Nothing when there is nothing to act on. The player that was controlled is
// remembered.
[[nodiscard]] Result<std::optional<SourcedPlayback>>
playSomewhere(const Session &session, const PlaybackAction &action,
              const std::optional<std::string> &player);

} // namespace Cli
