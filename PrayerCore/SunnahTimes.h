// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/PrayerTimes.h"

#include <optional>

namespace PrayerCore
{

// Marks of the night from a day's maghrib to the next day's fajr, in whole minutes.
struct SunnahTimes {
    Base::Instant middleOfTheNight{};
    Base::Instant lastThirdOfTheNight{}; // where it begins

    bool operator==(const SunnahTimes &) const = default;
};

// Of the night that follows the day; nothing when the next day has no times.
std::optional<SunnahTimes> sunnahTimes(const PrayerTimes &today);

// The same for a caller that has the next day's times; nothing when maghrib or fajr is not
// an instant that tells its seconds (hasExactSeconds).
std::optional<SunnahTimes> sunnahTimes(const PrayerTimes &today, const PrayerTimes &tomorrow);

} // namespace PrayerCore
