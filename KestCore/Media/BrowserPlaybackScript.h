// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Media/BrowserPlayback.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace KestCore
{

// The programs that run in a browser to read and control what plays there. No text from
// outside goes into the JavaScript: only numbers do.
class BrowserPlaybackScript
{
public:
    struct Action {
        enum class Kind : std::uint8_t { seek, volume, read, playPause, next, previous };

        Kind kind = Kind::read;
        double value{}; // seek: seconds; volume: the level

        bool operator==(const Action &) const = default;
    };

    // One expression. It does the action and then answers with the JSON of a BrowserPlayback
    // or with "null". A value that is not finite does nothing.
    static std::string javaScript(const Action &action);

    // The AppleScript around it, for a browser with this bundle identifier: runs the
    // JavaScript in the target's tab, or in the front window's active one, and never in a
    // private window. Fails with unavailable for a browser that is not supported.
    [[nodiscard]] static Result<std::string>
    browserScript(std::string_view browser, const std::optional<BrowserPlaybackTarget> &target,
                  std::string_view javaScript);

    // What is said when the browser refuses the script.
    static KestError refusal();
};

} // namespace KestCore
