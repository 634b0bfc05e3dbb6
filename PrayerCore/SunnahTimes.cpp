// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/SunnahTimes.h"

namespace PrayerCore
{

std::optional<SunnahTimes> sunnahTimes(const PrayerTimes &today)
{
    const std::chrono::year_month_day nextDay =
        std::chrono::sys_days{today.date} + std::chrono::days{1};
    const auto tomorrow = prayerTimes(today.coordinates, nextDay, today.calculationParameters);
    return tomorrow ? sunnahTimes(today, *tomorrow) : std::nullopt;
}

std::optional<SunnahTimes> sunnahTimes(const PrayerTimes &today, const PrayerTimes &tomorrow)
{
    if (!hasExactSeconds(today.maghrib) || !hasExactSeconds(tomorrow.fajr)) {
        return std::nullopt;
    }
    using std::chrono::seconds;
    const Base::Seconds night = tomorrow.fajr - today.maghrib;
    const auto after = [&](Base::Seconds time) {
        return roundToMinute(std::chrono::floor<seconds>(today.maghrib + time),
                             Rounding::nearest);
    };
    return SunnahTimes{.middleOfTheNight = after(night * 0.5),
                       .lastThirdOfTheNight = after(night * 2 / 3)};
}

} // namespace PrayerCore
