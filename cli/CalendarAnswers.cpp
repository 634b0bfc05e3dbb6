// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/CalendarAnswers.h"

#include "Base/Text.h"
#include "cli/PrayerText.h"

#include <algorithm>

namespace Cli
{

namespace
{

std::string dayText(std::int64_t day)
{
    return isoDateText(std::chrono::sys_days{std::chrono::days{day}});
}

} // namespace

IslamicDateAnswer islamicAnswer(const KestCore::IslamicDate &date)
{
    return {.day = date.day, .month = date.month, .year = date.year};
}

MonthAnswer monthAnswer(const KestCore::CalendarMonth &month,
                        const std::vector<CalendarFiles::AgendaDay> &days)
{
    const std::chrono::sys_days someWeek = std::chrono::sys_days{month.days.front().date};
    const std::string weekStart = dateText(someWeek);
    MonthAnswer answer{.year = static_cast<int>(month.month.year()),
                       .month = static_cast<int>(static_cast<unsigned>(month.month.month())),
                       .weekStart = Base::lowerAscii(weekStart.substr(0, weekStart.find(' ')))};
    for (const auto &day : month.days) {
        const auto found = std::ranges::find(days, day.date, &CalendarFiles::AgendaDay::date);
        const std::size_t events = found == days.end() ? 0 : found->events.size();
        answer.days.push_back({.date = isoDateText(day.date),
                               .islamicDate = islamicAnswer(day.islamic),
                               .inMonth = day.isInMonth,
                               .today = day.isToday,
                               .events = static_cast<std::int64_t>(events)});
    }
    return answer;
}

Result<EventAnswer> eventAnswer(const CalendarFiles::Occurrence &event)
{
    EventAnswer answer{.uid = event.uid,
                       .title = event.title,
                       .place = event.place,
                       .calendar = event.calendar,
                       .allDay = event.isAllDay,
                       .firstDay = dayText(event.firstDay),
                       .lastDay = dayText(event.lastDay)};
    KEST_TRY(answer.start, Base::toIso8601(event.start));
    KEST_TRY(answer.end, Base::toIso8601(event.end));
    return answer;
}

Result<AgendaDayAnswer> agendaDayAnswer(const CalendarFiles::AgendaDay &day,
                                        int islamicDayOffset)
{
    AgendaDayAnswer answer{
        .date = isoDateText(day.date),
        .islamicDate = islamicAnswer(KestCore::shownIslamicDate(day.date, islamicDayOffset))};
    for (const auto &event : day.events) {
        KEST_TRY(answer.events.emplace_back(), eventAnswer(event));
    }
    return answer;
}

SourceAnswer sourceAnswer(const CalendarFiles::SourceReport &report)
{
    SourceAnswer answer{.path = Base::printable(report.path),
                        .calendars = report.calendars,
                        .files = static_cast<std::int64_t>(report.files),
                        .events = static_cast<std::int64_t>(report.events),
                        .broken = static_cast<std::int64_t>(report.broken)};
    for (const std::string &problem : report.problems) {
        answer.problems.push_back(Base::printable(problem)); // a path may be no UTF-8
    }
    return answer;
}

} // namespace Cli
