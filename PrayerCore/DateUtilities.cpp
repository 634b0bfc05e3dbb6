// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/DateUtilities.h"

namespace PrayerCore
{

std::chrono::sys_seconds roundToMinute(std::chrono::sys_seconds moment, Rounding rounding)
{
    using std::chrono::minutes;
    const std::chrono::sys_seconds minute = std::chrono::floor<minutes>(moment);
    const std::chrono::seconds rest = moment - minute;
    switch (rounding) {
    case Rounding::nearest:
        return rest < std::chrono::seconds{30} ? minute : minute + minutes{1};
    case Rounding::up:
        return rest == std::chrono::seconds::zero() ? minute : minute + minutes{1};
    case Rounding::none:
        break;
    }
    return moment;
}

int dayOfYear(std::chrono::year_month_day date)
{
    using namespace std::chrono;
    const auto since = sys_days{date} - sys_days{date.year() / January / 1};
    return static_cast<int>(since.count()) + 1;
}

int daysFromSolstice(int dayOfYear, int year, double latitude)
{
    const int daysInYear = leapYear(year) ? 366 : 365;
    if (latitude >= 0) {
        const int days = dayOfYear + 10;
        return days >= daysInYear ? days - daysInYear : days;
    }
    const int days = dayOfYear - (leapYear(year) ? 173 : 172);
    return days < 0 ? days + daysInYear : days;
}

} // namespace PrayerCore
