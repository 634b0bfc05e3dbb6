// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/JulianDate.h"

#include "Base/Fault.h"

namespace PrayerCore
{

namespace
{

// The number without its fraction.
std::int64_t truncated(double value)
{
    constexpr double kEnd = 9'223'372'036'854'775'808.0; // the first that 64 bits cannot hold
    if (!(value >= -kEnd && value < kEnd)) {
        Base::fatalFault("PrayerCore/JulianDate", "The date is beyond all calendars.");
    }
    return static_cast<std::int64_t>(value);
}

} // namespace

CalendarComponents componentsOf(std::chrono::sys_days day)
{
    const std::chrono::year_month_day date{day};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<unsigned>(date.month()),
            .day = static_cast<unsigned>(date.day())};
}

double julianDate(const CalendarComponents &components)
{
    // January and February are the last months of the year before.
    const bool isAtEnd = components.month < 3;
    const double monthCount = static_cast<double>(components.month) + (isAtEnd ? 12 : 0);
    const double yearCount = static_cast<double>(components.year) - (isAtEnd ? 1 : 0);
    const auto yearDays = static_cast<double>(truncated(365.25 * (yearCount + 4716)));
    const auto monthDays = static_cast<double>(truncated(30.6001 * (monthCount + 1)));

    // The products have shown that the year is far from the end of its type.
    const std::int64_t century = (components.year - (isAtEnd ? 1 : 0)) / 100;
    const std::int64_t gregorianShift = 2 - century + century / 4;
    const double hours =
        static_cast<double>(components.hour) + static_cast<double>(components.minute) / 60;
    return yearDays + monthDays + static_cast<double>(components.day) + hours / 24 +
           static_cast<double>(gregorianShift) - 1524.5;
}

} // namespace PrayerCore
