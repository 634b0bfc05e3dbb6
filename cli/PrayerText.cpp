// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/PrayerText.h"

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <cmath>
#include <cstdlib>

namespace Cli
{

namespace
{

namespace chrono = std::chrono;

using KestCore::LocalDate;
using KestCore::PrayerDay;
using PrayerCore::Prayer;

constexpr std::array<std::string_view, 6> kNames{"Fajr", "Sunrise", "Dhuhr",
                                                 "Asr",  "Maghrib", "Isha"};
constexpr std::array<std::string_view, 7> kWeekdays{
    "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 12> kMonths{
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<std::string_view, 12> kIslamicMonths{
    "Muharram", "Safar",  "Rabi al-Awwal", "Rabi al-Thani", "Jumada al-Ula", "Jumada al-Akhira",
    "Rajab",    "Shaban", "Ramadan",       "Shawwal",       "Dhu al-Qada",   "Dhu al-Hijja"};

// 20261121T051200Z
std::string icsInstant(Base::Instant instant)
{
    const auto second = chrono::floor<chrono::seconds>(instant);
    const auto day = chrono::floor<chrono::days>(second);
    const chrono::year_month_day date{day};
    const chrono::hh_mm_ss clock{second - day};
    return fmt::format("{:04}{:02}{:02}T{:02}{:02}{:02}Z", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                       clock.hours().count(), clock.minutes().count(), clock.seconds().count());
}

std::string event(LocalDate date, Prayer prayer, Base::Instant at, Base::Instant now)
{
    return fmt::format("BEGIN:VEVENT\r\nUID:{}-{}@velvetnook\r\nDTSTAMP:{}\r\nDTSTART:{}\r\n"
                       "DURATION:PT0S\r\nSUMMARY:{}\r\nTRANSP:TRANSPARENT\r\nEND:VEVENT\r\n",
                       isoDateText(date), Base::textOf(prayer), icsInstant(now), icsInstant(at),
                       nameOf(prayer));
}

template <class Visit>
void forEachTime(const PrayerDay &day, const Visit &visit)
{
    for (const auto &[prayer, text] : enumTexts(Base::Of<Prayer>{})) {
        visit(prayer, day.times ? PrayerCore::instantOf(*day.times, prayer) : std::nullopt);
    }
}

} // namespace

std::string_view nameOf(Prayer prayer) { return kNames.at(static_cast<std::size_t>(prayer)); }

std::string clockText(const KestCore::Calendar &calendar, std::optional<Base::Instant> instant)
{
    if (!instant) {
        return "--:--";
    }
    const auto local = calendar.at(*instant);
    return fmt::format("{:02}:{:02}", local.hour, local.minute);
}

std::string isoDateText(LocalDate date)
{
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

KestCore::Result<LocalDate> dateFrom(const std::string &text)
{
    const auto midnight = Base::fromIso8601(text + "T00:00:00Z");
    if (!midnight) {
        return std::unexpected(
            Base::KestError::invalidData("Write a date as year-month-day, such as 2026-11-21"));
    }
    return LocalDate{chrono::floor<chrono::days>(chrono::floor<chrono::seconds>(*midnight))};
}

std::string dateText(LocalDate date)
{
    const chrono::weekday weekday{chrono::sys_days{date}};
    return fmt::format(
        "{} {} {} {}", kWeekdays.at(weekday.c_encoding()), static_cast<unsigned>(date.day()),
        kMonths.at(static_cast<unsigned>(date.month()) - 1), static_cast<int>(date.year()));
}

std::string monthText(chrono::year_month month)
{
    return fmt::format("{} {}", kMonths.at(static_cast<unsigned>(month.month()) - 1),
                       static_cast<int>(month.year()));
}

std::string islamicDateText(LocalDate date)
{
    const auto islamic = KestCore::PrayerCalculator::islamicDate(date);
    return fmt::format("{} {} {}", islamic.day,
                       kIslamicMonths.at(static_cast<std::size_t>(islamic.month - 1)),
                       islamic.year);
}

std::string dateLocale()
{
    for (const char *name : {"LC_ALL", "LC_TIME", "LANG"}) {
        if (const char *value = std::getenv(name); value != nullptr && *value != '\0') {
            return value;
        }
    }
    return {};
}

std::string countdownText(Base::Seconds left)
{
    // Up to the next whole minute: "in 0 min" would read as if it were over.
    const auto minutes = static_cast<std::int64_t>(std::ceil(left.count() / 60));
    return minutes < 60 ? fmt::format("in {} min", minutes)
                        : fmt::format("in {} h {} min", minutes / 60, minutes % 60);
}

std::string csvText(const KestCore::Calendar &calendar, const std::vector<PrayerDay> &days)
{
    std::string text = "date,islamic date,fajr,sunrise,dhuhr,asr,maghrib,isha\n";
    for (const PrayerDay &day : days) {
        const auto islamic = KestCore::PrayerCalculator::islamicDate(day.date);
        text += fmt::format("{},{:04}-{:02}-{:02}", isoDateText(day.date), islamic.year,
                            islamic.month, islamic.day);
        forEachTime(day, [&](Prayer, std::optional<Base::Instant> at) {
            text += "," + (at ? clockText(calendar, at) : std::string{});
        });
        text += '\n';
    }
    return text;
}

std::string icsText(const std::vector<PrayerDay> &days, Base::Instant now)
{
    std::string text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Velvetnook//kest//EN\r\n"
                       "X-WR-CALNAME:Prayer times\r\n";
    for (const PrayerDay &day : days) {
        forEachTime(day, [&](Prayer prayer, std::optional<Base::Instant> at) {
            if (at) {
                text += event(day.date, prayer, *at, now);
            }
        });
    }
    return text + "END:VCALENDAR\r\n";
}

} // namespace Cli
