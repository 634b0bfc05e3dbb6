// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Calendar.h"

#include <chrono>
#include <cmath>
#include <limits>

namespace KestCore
{

namespace
{

namespace chrono = std::chrono;

constexpr std::int64_t kSecondsPerDay = 86'400;

constexpr double startOf(chrono::sys_days day)
{
    return static_cast<double>(chrono::seconds{day.time_since_epoch()}.count());
}

// Two days inside the years that are promised: no offset from UTC leads out of them.
constexpr double kEarliest = startOf(chrono::year{-9999} / 1 / 3);
constexpr double kLatest = startOf(chrono::year{9999} / 12 / 30);

std::int64_t wholeSecond(Base::Instant instant)
{
    const double seconds = Base::seconds1970(instant);
    if (!(seconds > kEarliest)) {
        return static_cast<std::int64_t>(kEarliest);
    }
    return static_cast<std::int64_t>(std::floor(std::min(seconds, kLatest)));
}

std::int64_t dayOf(std::int64_t localSecond)
{
    return chrono::floor<chrono::days>(chrono::seconds{localSecond}).count();
}

} // namespace

Calendar::Calendar(ZoneRules rules) : m_rules(std::make_shared<ZoneRules>(std::move(rules))) {}

Result<Calendar> Calendar::inZone(std::string_view identifier)
{
    KEST_TRY(auto rules, ZoneRules::ofIdentifier(identifier));
    return Calendar{std::move(rules)};
}

Calendar Calendar::ofHost() { return Calendar{ZoneRules::ofHost()}; }

LocalTime Calendar::at(Base::Instant instant) const
{
    const chrono::sys_seconds local{chrono::seconds{localSecond(instant)}};
    const auto day = chrono::floor<chrono::days>(local);
    const chrono::year_month_day date{day};
    const chrono::hh_mm_ss clock{local - day};
    return {.year = static_cast<int>(date.year()),
            .month = static_cast<int>(static_cast<unsigned>(date.month())),
            .day = static_cast<int>(static_cast<unsigned>(date.day())),
            .hour = static_cast<int>(clock.hours().count()),
            .minute = static_cast<int>(clock.minutes().count()),
            .second = static_cast<int>(clock.seconds().count()),
            .weekday = static_cast<int>(chrono::weekday{day}.c_encoding())};
}

std::int64_t Calendar::dayNumber(Base::Instant instant) const
{
    return dayOf(localSecond(instant));
}

Calendar::Offset Calendar::offsetAt(Base::Instant instant) const
{
    const ZoneRules::Span span = m_rules->spanAt(wholeSecond(instant));
    const bool isLast = span.end == std::numeric_limits<std::int64_t>::max();
    return {.ahead = Base::Seconds{static_cast<double>(span.offset)},
            .end = Base::fromSeconds1970(isLast ? std::numeric_limits<double>::infinity()
                                                : static_cast<double>(span.end))};
}

Base::Instant Calendar::nextDateChange(Base::Instant instant) const
{
    const std::int64_t today = dayNumber(instant);
    std::int64_t at = wholeSecond(instant);
    while (true) {
        const ZoneRules::Span span = m_rules->spanAt(at);
        if (const std::int64_t local = at + span.offset; dayOf(local) != today) {
            return Base::fromSeconds1970(static_cast<double>(at));
        }
        const std::int64_t midnight = (today + 1) * kSecondsPerDay - span.offset;
        at = std::min(midnight, span.end);
    }
}

std::int64_t Calendar::localSecond(Base::Instant instant) const
{
    const std::int64_t second = wholeSecond(instant);
    return second + m_rules->spanAt(second).offset;
}

} // namespace KestCore
