// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/NativeState.h"
#include "KestCore/Prayer/PrayerCalculator.h"

#include <chrono>
#include <string>
#include <vector>

// A month as it hangs on the wall, both calendars side by side.
namespace KestCore
{

struct CalendarDay {
    LocalDate date{};
    IslamicDate islamic{};
    bool isInMonth{}; // the first and the last week reach into the neighbouring months
    bool isToday{};

    bool operator==(const CalendarDay &) const = default;
};

struct CalendarMonth {
    std::chrono::year_month month{};
    std::chrono::weekday firstWeekday{};
    std::vector<CalendarDay> days{}; // whole weeks

    bool operator==(const CalendarMonth &) const = default;
};

// Every week that has a day of the month. `islamicDayOffset` moves the Islamic dates, as the
// setting of the same name does. The month must be one of the years 1900 to 2200.
CalendarMonth calendarMonth(std::chrono::year_month month, std::chrono::weekday firstWeekday,
                            LocalDate today, int islamicDayOffset = 0);

// The day that weeks begin with: the setting "calendar.weekStart" ("monday" to "sunday"), else
// as it is in the country of the locale, such as "ar_EG.UTF-8"; Monday where that names none.
std::chrono::weekday firstWeekday(const Settings &settings, const std::string &localeName);

// The Islamic date of a day, moved by as many days as "prayer.islamicDayOffset" says, two at
// most.
int islamicDayOffset(const Settings &settings);
IslamicDate shownIslamicDate(LocalDate date, int offset);

} // namespace KestCore
