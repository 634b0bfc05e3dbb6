// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace KestCore
{

// What plays in a browser tab, or in a player that is shown as one.
struct BrowserPlayback {
    std::string title{};
    std::string artist{};
    bool playing{};
    double position{}; // seconds
    double duration{}; // seconds; 0: not known, or without an end
    double volume{};   // 0 to 1
    bool canSeek{};
    bool canNext{};
    bool canPrevious{};

    bool operator==(const BrowserPlayback &) const = default;

    // Of title and of artist. A character is a Unicode code point, here and where the script
    // cuts, so that whatever the script sends is accepted.
    static constexpr std::size_t kLongestText = 300;
    static constexpr std::size_t kLargestResponse = 8'192; // bytes of UTF-8

    // Reads what the script answered; nothing for the text "null", where the page has no
    // medium. Fails with invalidData.
    [[nodiscard]] static Result<std::optional<BrowserPlayback>>
    parse(std::string_view response);
    [[nodiscard]] Result<void> validate() const;
};
consteval auto jsonFields(Of<BrowserPlayback>)
{
    using R = BrowserPlayback;
    return std::tuple{
        json::Field{"title", &R::title},
        json::Field{"artist", &R::artist},
        json::Field{"playing", &R::playing},
        json::Field{"position", &R::position},
        json::Field{"duration", &R::duration},
        json::Field{"volume", &R::volume},
        json::Field{"canSeek", &R::canSeek},
        json::Field{"canNext", &R::canNext},
        json::Field{"canPrevious", &R::canPrevious},
    };
}
static_assert(json::coversAllMembers<BrowserPlayback>());

// The window and the tab that the user connected, by the browser's own ids.
struct BrowserPlaybackTarget {
    std::string window{};
    std::string tab{};

    bool operator==(const BrowserPlaybackTarget &) const = default;
};

// What a connected tab answered.
struct BrowserPlaybackReading {
    BrowserPlaybackTarget target{};
    std::optional<BrowserPlayback> playback{}; // absent: nothing to play there

    bool operator==(const BrowserPlaybackReading &) const = default;

    // From the texts that the browser script returned. Nothing for an empty list: no window or
    // tab that may be read. Fails with invalidData.
    [[nodiscard]] static Result<std::optional<BrowserPlaybackReading>>
    parse(std::span<const std::string> answer);
};

} // namespace KestCore
