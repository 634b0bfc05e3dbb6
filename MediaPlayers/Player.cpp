// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MediaPlayers/Player.h"

#include "Base/Text.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace MediaPlayers
{

namespace
{

double asTime(double seconds) { return std::isfinite(seconds) ? std::max(seconds, 0.0) : 0.0; }

std::string cut(std::string_view text)
{
    return std::string{Base::firstCharacters(text, KestCore::BrowserPlayback::kLongestText)};
}

// Whether a figure has come to where it was wanted: exactly, or roughly where it was not even
// that before. Players round.
bool hasCome(double before, double after, double wanted, double exactly, double roughly)
{
    const auto isWithin = [&](double figure, double reach) {
        return std::abs(figure - wanted) < reach;
    };
    return isWithin(after, exactly) || (isWithin(after, roughly) && !isWithin(before, roughly));
}

} // namespace

KestCore::BrowserPlayback playbackOf(const Player &player)
{
    const std::string &shown = player.identity.empty() ? player.name : player.identity;
    return {.title = cut(player.title.empty() ? shown : player.title),
            .artist = cut(player.artist),
            .playing = player.status == Player::Status::playing,
            .position = asTime(player.position),
            .duration = asTime(player.duration),
            .volume = std::isfinite(player.volume) ? std::clamp(player.volume, 0.0, 1.0) : 1.0,
            .canSeek = player.canSeek,
            .canNext = player.canNext,
            .canPrevious = player.canPrevious};
}

std::vector<Player> inOrder(std::vector<Player> players, std::string_view controlledLast)
{
    std::ranges::sort(players, {}, [&](const Player &player) {
        return std::tuple{player.status, player.name != controlledLast,
                          std::string_view{player.name}};
    });
    return players;
}

bool isBrowser(const Player &player)
{
    static constexpr std::array<std::string_view, 8> kBrowsers{
        "brave", "chrome", "chromium", "edge", "epiphany", "firefox", "librewolf", "vivaldi"};
    const std::string name = Base::lowerAscii(player.name + " " + player.identity);
    return name.contains("browser") ||
           std::ranges::any_of(kBrowsers, [&](auto browser) { return name.contains(browser); });
}

std::vector<Player> withoutDoubles(std::vector<Player> players)
{
    constexpr double kNear = 3; // seconds between two answers about one place in a track
    const auto isDouble = [](const Player &one, const Player &other) {
        const bool isSame = !one.title.empty() && one.title == other.title &&
                            one.artist == other.artist && one.status == other.status;
        return isSame && (isBrowser(one) || isBrowser(other) ||
                          std::abs(one.position - other.position) < kNear);
    };
    std::vector<Player> each;
    for (Player &player : players) {
        if (std::ranges::none_of(each, [&](const auto &it) { return isDouble(it, player); })) {
            each.push_back(std::move(player));
        }
    }
    return each;
}

const Player *find(const std::vector<Player> &players, std::string_view wanted)
{
    if (const auto exact = std::ranges::find(players, wanted, &Player::name);
        exact != players.end() || wanted.empty()) {
        return wanted.empty() ? nullptr : &*exact;
    }
    const std::string lower = Base::lowerAscii(wanted);
    const auto found = std::ranges::find_if(players, [&](const Player &player) {
        const std::string name = Base::lowerAscii(player.name);
        return name == lower || name.substr(0, name.find('.')) == lower ||
               Base::lowerAscii(player.identity) == lower;
    });
    return found == players.end() ? nullptr : &*found;
}

bool hasFollowed(const Player &before, const Player &after, const Action &action)
{
    using Kind = Action::Kind;
    switch (action.kind) {
    case Kind::playPause:
        return before.status != after.status;
    case Kind::volume:
        return hasCome(before.volume, after.volume, std::clamp(action.value, 0.0, 1.0), 0.005,
                       0.02);
    case Kind::seek:
        return hasCome(before.position, after.position, reachable(before, action.value), 0.3,
                       1.5);
    case Kind::next:
    case Kind::previous:
        return before.track != after.track || before.title != after.title ||
               after.position < before.position;
    case Kind::read:
        break;
    }
    return true;
}

} // namespace MediaPlayers
