// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"
#include "Base/Instant.h"
#include "PrayerCore/CalculationParameters.h"
#include "PrayerCore/Coordinates.h"

#include <chrono>
#include <cstdint>
#include <optional>

namespace PrayerCore
{

// The times of a day in their order; sunrise ends the time of fajr.
enum class Prayer : std::uint8_t { fajr, sunrise, dhuhr, asr, maghrib, isha };

constexpr auto enumTexts(Base::Of<Prayer>)
{
    using enum Prayer;
    return Base::EnumTexts<Prayer, 6>{{{fajr, "fajr"},
                                       {sunrise, "sunrise"},
                                       {dhuhr, "dhuhr"},
                                       {asr, "asr"},
                                       {maghrib, "maghrib"},
                                       {isha, "isha"}}};
}

// The times of one day at one place, each a whole second, with what they were found from.
// Asr alone can be absent: on the few days at the edge of the polar night when refraction
// lifts the Sun over the horizon while its centre stays below it, nothing casts a shadow by
// the formula, and the other five times still hold.
struct PrayerTimes {
    Base::Instant fajr{};
    Base::Instant sunrise{};
    Base::Instant dhuhr{};
    std::optional<Base::Instant> asr{};
    Base::Instant maghrib{};
    Base::Instant isha{};
    Coordinates coordinates{};
    std::chrono::year_month_day date{};
    CalculationParameters calculationParameters{};

    bool operator==(const PrayerTimes &) const = default;
};

// The times of that day, the day being the one of the UTC calendar in which the Sun's transit
// falls. Nothing
// - for coordinates off the globe, a date that does not exist or lies outside the years 1 to
//   9999, and parameters that are not usable (isOnGlobe, isInCalendar, isUsable);
// - for a day whose Sun does not rise or set, and one before a day whose Sun does not rise.
// Within five degrees of the 180th meridian the transit crosses 0h UTC in some seasons. The
// night of the last day before that crossing is a day too long or too short, and its limits
// for fajr and isha are wrong: whoever shows such places has to see to it.
// Minutes so many that their seconds cannot be counted end the program.
std::optional<PrayerTimes> prayerTimes(const Coordinates &coordinates,
                                       std::chrono::year_month_day date,
                                       const CalculationParameters &parameters);

// When the prayer is; absent for an asr that the day does not have.
std::optional<Base::Instant> instantOf(const PrayerTimes &times, Prayer prayer);

// The prayer whose time has come last, from its very instant on. Nothing before fajr and for
// an instant that is NaN.
std::optional<Prayer> prayerInProgress(const PrayerTimes &times, Base::Instant instant);

// The next prayer of the day. Nothing from isha on and for an instant that is NaN.
std::optional<Prayer> upcomingPrayer(const PrayerTimes &times, Base::Instant instant);

} // namespace PrayerCore
