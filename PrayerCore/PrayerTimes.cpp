// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/PrayerTimes.h"

#include "PrayerCore/PrayerDays.h"

#include <array>
#include <cmath>

namespace PrayerCore
{

namespace
{

using enum Prayer;

constexpr std::array kLatestFirst{isha, maghrib, asr, dhuhr, sunrise, fajr};

} // namespace

std::optional<PrayerTimes> prayerTimes(const Coordinates &coordinates,
                                       std::chrono::year_month_day date,
                                       const CalculationParameters &parameters)
{
    auto days = PrayerDays::from(coordinates, date, parameters);
    return days ? days->next() : std::nullopt;
}

std::optional<Base::Instant> instantOf(const PrayerTimes &times, Prayer prayer)
{
    switch (prayer) {
    case fajr:
        return times.fajr;
    case sunrise:
        return times.sunrise;
    case dhuhr:
        return times.dhuhr;
    case asr:
        return times.asr;
    case maghrib:
        return times.maghrib;
    case isha:
        return times.isha;
    }
    return std::nullopt;
}

std::optional<Prayer> prayerInProgress(const PrayerTimes &times, Base::Instant instant)
{
    for (const Prayer prayer : kLatestFirst) {
        if (const auto time = instantOf(times, prayer); time && *time <= instant) {
            return prayer;
        }
    }
    return std::nullopt;
}

std::optional<Prayer> upcomingPrayer(const PrayerTimes &times, Base::Instant instant)
{
    if (std::isnan(Base::seconds1970(instant))) {
        return std::nullopt;
    }
    std::optional<Prayer> following;
    for (const Prayer prayer : kLatestFirst) {
        const auto time = instantOf(times, prayer);
        if (time && *time <= instant) {
            return following;
        }
        following = time ? prayer : following;
    }
    return following;
}

} // namespace PrayerCore
