// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/PlaybackAnswers.h"

#include "Base/JsonWriter.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

template Base::Result<std::string> Base::json::encode(const std::vector<Cli::PlayerAnswer> &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::TabAnswer> &);

namespace Cli
{

std::string playingTime(double seconds)
{
    constexpr double kLongestShown = 359'999'999; // a page may name any number
    const auto whole = static_cast<std::int64_t>(std::clamp(seconds, 0.0, kLongestShown));
    const auto hours = whole / 3600;
    const auto minutes = whole / 60 % 60;
    return hours > 0 ? fmt::format("{}:{:02}:{:02}", hours, minutes, whole % 60)
                     : fmt::format("{}:{:02}", minutes, whole % 60);
}

} // namespace Cli
