// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerFocusPlan.h"

#include <chrono>
#include <cmath>

namespace KestCore
{

namespace
{

using PrayerCore::Prayer;

KestError tooClose()
{
    return KestError::invalidData("The next prayer is too close for this buffer. Try an "
                                  "ordinary timer or reduce the buffer.");
}

bool isBuffer(std::int64_t minutes) { return minutes >= 0 && minutes <= kLongestPrayerBuffer; }

} // namespace

bool keepsRules(const PrayerFocusPlan &plan)
{
    return Base::fromText<Prayer>(plan.prayer).has_value() && isBuffer(plan.bufferMinutes);
}

Result<PrayerFocusPlan> planFocus(const NextPrayer &next, std::int64_t bufferMinutes,
                                  Base::Instant now)
{
    if (!isBuffer(bufferMinutes)) {
        return std::unexpected(
            KestError::invalidData("The buffer must be between 0 and 120 minutes"));
    }
    const Base::Instant deadline = next.at - std::chrono::minutes{bufferMinutes};
    if (!(deadline - now >= kShortestFocus)) {
        return std::unexpected(tooClose());
    }
    return PrayerFocusPlan{.prayer = std::string{Base::textOf(next.prayer)},
                           .bufferMinutes = bufferMinutes,
                           .deadline = deadline};
}

std::string focusConfirmation(std::string_view prayer, std::int64_t bufferMinutes,
                              std::string_view timeText)
{
    std::string text = "Focus until ";
    text += prayer;
    text += ", " + std::to_string(bufferMinutes) + " minutes before ";
    text += timeText;
    return text + ". Later location or prayer changes will ask you to review the deadline.";
}

std::optional<PrayerFocusPlan> revisedPlan(const PrayerFocusPlan &running,
                                           const PrayerInputs &inputs, Base::Instant now)
{
    const auto prayer = Base::fromText<Prayer>(running.prayer);
    if (!prayer || running.deadline <= now) {
        return std::nullopt;
    }
    // The occurrence that the plan was made for is the one nearest to its deadline: isha of
    // yesterday can come after midnight.
    const std::chrono::sys_days today{PrayerCalculator::today(inputs, now)};
    std::optional<Base::Instant> nearest;
    for (const PrayerDay &day :
         PrayerCalculator::days(inputs, today - std::chrono::days{1}, 3)) {
        const auto at = day.times ? PrayerCore::instantOf(*day.times, *prayer) : std::nullopt;
        const auto distance = [&](Base::Instant instant) {
            return std::abs((instant - running.deadline).count());
        };
        if (at && (!nearest || distance(*at) < distance(*nearest))) {
            nearest = at;
        }
    }
    if (!nearest) {
        return std::nullopt;
    }
    const auto plan =
        planFocus({.prayer = *prayer, .at = *nearest}, running.bufferMinutes, now);
    return plan && plan->deadline != running.deadline ? std::optional{*plan} : std::nullopt;
}

} // namespace KestCore
