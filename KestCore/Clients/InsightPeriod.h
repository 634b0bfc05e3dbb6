// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The stretches of time that a report can be about, by the user's clock.
namespace KestCore
{

enum class InsightPeriod : std::uint8_t {
    today,
    last7Days, // today and the six days before it; the others likewise
    last30Days,
    last90Days,
    monthToDate,
    yearToDate,
};
constexpr auto enumTexts(Of<InsightPeriod>)
{
    using enum InsightPeriod;
    return Base::EnumTexts<InsightPeriod, 6>{{{today, "today"},
                                              {last7Days, "7d"},
                                              {last30Days, "30d"},
                                              {last90Days, "90d"},
                                              {monthToDate, "month"},
                                              {yearToDate, "year"}}};
}
inline constexpr InsightPeriod kUsualInsightPeriod = InsightPeriod::last30Days;

// How finely a chart of the period is cut: today in hours, everything longer in days.
enum class InsightInterval : std::uint8_t { hour, day };
constexpr auto enumTexts(Of<InsightInterval>)
{
    using enum InsightInterval;
    return Base::EnumTexts<InsightInterval, 2>{{{hour, "hour"}, {day, "day"}}};
}

// The user's calendar, and the name that its time zone goes by.
struct InsightZone {
    Calendar calendar;
    std::string identifier{};

    // Of this machine. A machine whose zone has no name, only rules, is said to be in "UTC".
    static InsightZone ofHost();
};

// From the first instant of a local day up to now.
struct InsightSpan {
    Base::Instant start{}; // both whole seconds, and both inside
    Base::Instant end{};
    InsightInterval interval{};
};
InsightSpan spanOf(InsightPeriod period, Base::Instant now, const Calendar &calendar);

// Where each hour or local day of the span begins; a day is as long as its clock makes it.
std::vector<Base::Instant> bucketsOf(const InsightSpan &span, const Calendar &calendar);

// The instant that a provider means: with an offset from UTC, or by the user's clock, with a
// time of day or without. Nothing where it is no such text.
std::optional<Base::Instant> instantFrom(std::string_view text, const Calendar &calendar);

} // namespace KestCore
