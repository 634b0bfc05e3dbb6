// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Media/BrowserPlayback.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"
#include "Base/Text.h"

#include <cmath>

namespace Base::json
{

using namespace KestCore;
template Result<BrowserPlayback> decode(const PaddedText &);
template Result<std::string> encode(const BrowserPlayback &);
template Result<std::string> encode(const OrNull<BrowserPlayback> &);

} // namespace Base::json

namespace KestCore
{

namespace
{

KestError invalidDetails() { return KestError::invalidData("Invalid playback details."); }

bool isShort(std::string_view text)
{
    return Base::countCodePoints(text) <= BrowserPlayback::kLongestText;
}

bool isTime(double seconds) { return std::isfinite(seconds) && seconds >= 0; }

} // namespace

Result<void> BrowserPlayback::validate() const
{
    if (!isShort(title) || !isShort(artist) || !isTime(position) || !isTime(duration) ||
        !(volume >= 0 && volume <= 1)) {
        return std::unexpected(invalidDetails());
    }
    return {};
}

Result<std::optional<BrowserPlayback>> BrowserPlayback::parse(std::string_view response)
{
    if (response.size() > kLargestResponse) {
        return std::unexpected(KestError::invalidData("Playback response is too large."));
    }
    if (response == "null") {
        return std::nullopt;
    }
    auto playback = json::decode<BrowserPlayback>(response);
    if (!playback) {
        return std::unexpected(invalidDetails());
    }
    KEST_CHECK(playback->validate());
    return *std::move(playback);
}

Result<std::optional<BrowserPlaybackReading>>
BrowserPlaybackReading::parse(std::span<const std::string> answer)
{
    if (answer.empty()) {
        return std::nullopt;
    }
    if (answer.size() != 3) {
        return std::unexpected(invalidDetails());
    }
    KEST_TRY(auto playback, BrowserPlayback::parse(answer[2]));
    return BrowserPlaybackReading{.target = {.window = answer[0], .tab = answer[1]},
                                  .playback = std::move(playback)};
}

} // namespace KestCore
