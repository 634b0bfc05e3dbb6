// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Prayer/PrayerCalculator.h"
#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace KestCore
{

// A focus period that ends some minutes before a prayer: the body of a record of kind
// "prayer". Its deadline stays as it was set when places or settings change later.
struct PrayerFocusPlan {
    std::string prayer{};
    std::int64_t bufferMinutes{};
    Base::Instant deadline{};

    bool operator==(const PrayerFocusPlan &) const = default;
};

consteval auto jsonFields(Of<PrayerFocusPlan>)
{
    using R = PrayerFocusPlan;
    return std::tuple{json::Field{"prayer", &R::prayer},
                      json::Field{"bufferMinutes", &R::bufferMinutes},
                      json::Field{"deadline", &R::deadline}};
}
static_assert(json::coversAllMembers<PrayerFocusPlan>());

inline constexpr std::int64_t kLongestPrayerBuffer = 120; // minutes; the shortest is 0
inline constexpr Base::Seconds kShortestFocus{60};

bool keepsRules(const PrayerFocusPlan &plan);

// The texts of the way to a plan.
inline constexpr std::string_view kFocusTitle = "Focus until prayer?";
inline constexpr std::string_view kFocusChanged =
    "Prayer settings changed. Your current deadline is unchanged.";
inline constexpr std::string_view kFocusReview = "Review revised deadline…";

// The plan to focus until so many minutes before the next prayer. Fails with invalidData
// "The next prayer is too close for this buffer. Try an ordinary timer or reduce the buffer."
// when less than a minute would be left, and for a buffer outside 0 to 120 minutes.
[[nodiscard]] Result<PrayerFocusPlan> planFocus(const NextPrayer &next,
                                                std::int64_t bufferMinutes, Base::Instant now);

// The question before a plan starts; `prayer` and `timeText` as the user reads them.
std::string focusConfirmation(std::string_view prayer, std::int64_t bufferMinutes,
                              std::string_view timeText);

// The plan as it would be made now, when prayer times have changed since; nothing when the
// deadline is still right, has passed, or the prayer has no time any more. The running plan
// goes on unchanged until the user takes the revised one.
std::optional<PrayerFocusPlan> revisedPlan(const PrayerFocusPlan &running,
                                           const PrayerInputs &inputs, Base::Instant now);

} // namespace KestCore
