// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/EnumText.h"
#include "Base/Instant.h"
#include "PrayerCore/Angle.h"

#include <chrono>
#include <cmath>
#include <cstdint>
#include <optional>

namespace PrayerCore
{

// What becomes of the seconds of a time.
enum class Rounding : std::uint8_t { nearest, up, none };

constexpr auto enumTexts(Base::Of<Rounding>)
{
    using enum Rounding;
    return Base::EnumTexts<Rounding, 3>{{{nearest, "nearest"}, {up, "up"}, {none, "none"}}};
}

// A time of day in whole seconds. The hours may lie before or after the day, and the seconds
// may be -1 or 60 where the division into minutes fell on the edge: `at` carries them over.
struct TimeComponents {
    int hours{};
    int minutes{};
    int seconds{};

    bool operator==(const TimeComponents &) const = default;
};

// Hours after midnight as hours, minutes and seconds; a fraction of a second is cut off.
// Nothing for NaN, the infinities, and a time outside the day and its two neighbours (-24 to
// 48): an event of the Sun lies within them, so its approximation has failed.
inline std::optional<TimeComponents> timeComponents(double hours)
{
    if (!(hours >= -24 && hours < 48)) {
        return std::nullopt;
    }
    const double wholeHours = wholeBelow(hours);
    const double minutes = wholeBelow((hours - wholeHours) * 60);
    const double seconds = wholeBelow((hours - (wholeHours + minutes / 60)) * 60 * 60);
    return TimeComponents{.hours = static_cast<int>(wholeHours),
                          .minutes = static_cast<int>(minutes),
                          .seconds = static_cast<int>(seconds)};
}

// The moment of that time of the day in UTC.
constexpr std::chrono::sys_seconds at(std::chrono::sys_days day, const TimeComponents &time)
{
    return day + std::chrono::hours{time.hours} + std::chrono::minutes{time.minutes} +
           std::chrono::seconds{time.seconds};
}

// Whether the instant is near enough to 1970 (2 to the 53rd seconds) to tell every second;
// NaN and the infinities are not.
inline bool hasExactSeconds(Base::Instant instant)
{
    return std::abs(Base::seconds1970(instant)) <= 9'007'199'254'740'992.0;
}

// `nearest` and `up` give a whole minute (30 seconds and more are nearest to the next, one
// second and more go up to it); `none` gives the moment as it is.
std::chrono::sys_seconds roundToMinute(std::chrono::sys_seconds moment, Rounding rounding);

constexpr bool leapYear(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

// 1 for the first of January.
int dayOfYear(std::chrono::year_month_day date);

// Days since the winter solstice of the hemisphere, that of the north at latitude 0.
int daysFromSolstice(int dayOfYear, int year, double latitude);

} // namespace PrayerCore
