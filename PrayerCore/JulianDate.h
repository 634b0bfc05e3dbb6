// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>

namespace PrayerCore
{

// A moment of the gregorian calendar in UTC; what is left out counts as the first.
struct CalendarComponents {
    std::int64_t year{1};
    std::int64_t month{1};
    std::int64_t day{1};
    std::int64_t hour{};
    std::int64_t minute{};
};

// The calendar day at 0h.
CalendarComponents componentsOf(std::chrono::sys_days day);

// The Julian day: days since noon of 1 January 4713 BC in the julian calendar (Meeus,
// Astronomical Algorithms, chapter 7). A year or month whose count of days does not fit
// 64 bits ends the program.
double julianDate(const CalendarComponents &components);

// Julian centuries of 36,525 days since 1 January 2000, 12h.
constexpr double centuriesSinceJ2000(double julianDay)
{
    return (julianDay - 2451545.0) / 36525.0;
}

} // namespace PrayerCore
