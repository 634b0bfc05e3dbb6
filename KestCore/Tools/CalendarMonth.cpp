// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/CalendarMonth.h"

#include "Base/Text.h"

#include <unicode/gregocal.h>

#include <algorithm>
#include <array>

namespace KestCore
{

namespace
{

namespace chrono = std::chrono;

constexpr int kFurthestOffset = 2;
constexpr std::array<std::string_view, 7> kWeekdays{
    "sunday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday"};

std::string valueOf(const Settings &settings, const char *key)
{
    const auto found = settings.find(key);
    return found == settings.end() ? std::string{} : found->second;
}

chrono::weekday firstWeekdayOf(const std::string &localeName)
{
    const auto locale = icu::Locale::createCanonical(localeName.c_str());
    if (std::string_view{locale.getCountry()}.empty()) {
        return chrono::Monday;
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::GregorianCalendar calendar{*icu::TimeZone::getGMT(), locale, status};
    const int first = calendar.getFirstDayOfWeek(status);
    return U_FAILURE(status) != 0 || first < UCAL_SUNDAY || first > UCAL_SATURDAY
               ? chrono::Monday
               : chrono::weekday{static_cast<unsigned>(first - UCAL_SUNDAY)};
}

} // namespace

CalendarMonth calendarMonth(chrono::year_month month, chrono::weekday firstWeekday,
                            LocalDate today, int islamicDayOffset)
{
    const chrono::sys_days first{month / 1};
    const chrono::sys_days last{month / chrono::last};
    const chrono::sys_days start = first - (chrono::weekday{first} - firstWeekday);
    CalendarMonth shown{.month = month, .firstWeekday = firstWeekday};
    for (auto day = start; day <= last || (day - start).count() % 7 != 0;
         day += chrono::days{1}) {
        shown.days.push_back({.date = day,
                              .islamic = shownIslamicDate(day, islamicDayOffset),
                              .isInMonth = day >= first && day <= last,
                              .isToday = day == chrono::sys_days{today}});
    }
    return shown;
}

chrono::weekday firstWeekday(const Settings &settings, const std::string &localeName)
{
    const std::string chosen = valueOf(settings, "calendar.weekStart");
    const auto found = std::ranges::find(kWeekdays, chosen);
    return found == kWeekdays.end()
               ? firstWeekdayOf(localeName)
               : chrono::weekday{static_cast<unsigned>(found - kWeekdays.begin())};
}

int islamicDayOffset(const Settings &settings)
{
    const auto days = Base::numberFrom<int>(valueOf(settings, "prayer.islamicDayOffset"));
    return std::clamp(days.value_or(0), -kFurthestOffset, kFurthestOffset);
}

IslamicDate shownIslamicDate(LocalDate date, int offset)
{
    return PrayerCalculator::islamicDate(chrono::sys_days{date} + chrono::days{offset});
}

} // namespace KestCore
