// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/CalendarLibrary.h"
#include "KestCore/Tools/CalendarMonth.h"
#include "cli/PrayerAnswers.h"

#include <cstdint>
#include <string>
#include <vector>

// The JSON documents of the calendar commands. Instants are ISO 8601 in UTC.
namespace Cli
{

struct MonthDayAnswer {
    std::string date{};
    IslamicDateAnswer islamicDate{};
    bool inMonth{};
    bool today{};
    std::int64_t events{};
};
consteval auto jsonFields(Of<MonthDayAnswer>)
{
    using R = MonthDayAnswer;
    return std::tuple{json::Field{"date", &R::date},
                      json::Field{"islamicDate", &R::islamicDate},
                      json::Field{"inMonth", &R::inMonth}, json::Field{"today", &R::today},
                      json::Field{"events", &R::events}};
}
static_assert(json::coversAllMembers<MonthDayAnswer>());

struct MonthAnswer {
    int year{};
    int month{};
    std::string weekStart{}; // "monday"
    std::vector<MonthDayAnswer> days{};
};
consteval auto jsonFields(Of<MonthAnswer>)
{
    using R = MonthAnswer;
    return std::tuple{json::Field{"year", &R::year}, json::Field{"month", &R::month},
                      json::Field{"weekStart", &R::weekStart}, json::Field{"days", &R::days}};
}
static_assert(json::coversAllMembers<MonthAnswer>());

struct EventAnswer {
    std::string uid{};
    std::string title{};
    std::string place{};
    std::string calendar{};
    bool allDay{};
    std::string start{};
    std::string end{};
    std::string firstDay{}; // on the clock of this machine, as is the last
    std::string lastDay{};
};
consteval auto jsonFields(Of<EventAnswer>)
{
    using R = EventAnswer;
    return std::tuple{json::Field{"uid", &R::uid},        json::Field{"title", &R::title},
                      json::Field{"place", &R::place},    json::Field{"calendar", &R::calendar},
                      json::Field{"allDay", &R::allDay},  json::Field{"start", &R::start},
                      json::Field{"end", &R::end},        json::Field{"firstDay", &R::firstDay},
                      json::Field{"lastDay", &R::lastDay}};
}
static_assert(json::coversAllMembers<EventAnswer>());

struct AgendaDayAnswer {
    std::string date{};
    IslamicDateAnswer islamicDate{};
    std::vector<EventAnswer> events{};
};
consteval auto jsonFields(Of<AgendaDayAnswer>)
{
    using R = AgendaDayAnswer;
    return std::tuple{json::Field{"date", &R::date},
                      json::Field{"islamicDate", &R::islamicDate},
                      json::Field{"events", &R::events}};
}
static_assert(json::coversAllMembers<AgendaDayAnswer>());

struct NextEventAnswer {
    EventAnswer event{};
    double seconds{}; // until it begins
};
consteval auto jsonFields(Of<NextEventAnswer>)
{
    return std::tuple{json::Field{"event", &NextEventAnswer::event},
                      json::Field{"seconds", &NextEventAnswer::seconds}};
}
static_assert(json::coversAllMembers<NextEventAnswer>());

struct AgendaAnswer {
    std::vector<AgendaDayAnswer> days{};
    json::OrNull<NextEventAnswer> next{};
    std::int64_t broken{}; // events that could not be read
    bool whole{};          // false: there were more than are counted out
    std::vector<std::string> problems{};
};
consteval auto jsonFields(Of<AgendaAnswer>)
{
    using R = AgendaAnswer;
    return std::tuple{json::Field{"days", &R::days}, json::Field{"next", &R::next},
                      json::Field{"broken", &R::broken}, json::Field{"whole", &R::whole},
                      json::Field{"problems", &R::problems}};
}
static_assert(json::coversAllMembers<AgendaAnswer>());

struct SourceAnswer {
    std::string path{};
    std::vector<std::string> calendars{};
    std::int64_t files{};
    std::int64_t events{};
    std::int64_t broken{};
    std::vector<std::string> problems{};
};
consteval auto jsonFields(Of<SourceAnswer>)
{
    using R = SourceAnswer;
    return std::tuple{
        json::Field{"path", &R::path},     json::Field{"calendars", &R::calendars},
        json::Field{"files", &R::files},   json::Field{"events", &R::events},
        json::Field{"broken", &R::broken}, json::Field{"problems", &R::problems}};
}
static_assert(json::coversAllMembers<SourceAnswer>());

IslamicDateAnswer islamicAnswer(const KestCore::IslamicDate &date);
MonthAnswer monthAnswer(const KestCore::CalendarMonth &month,
                        const std::vector<CalendarFiles::AgendaDay> &days);
[[nodiscard]] Result<EventAnswer> eventAnswer(const CalendarFiles::Occurrence &event);
[[nodiscard]] Result<AgendaDayAnswer> agendaDayAnswer(const CalendarFiles::AgendaDay &day,
                                                      int islamicDayOffset);
SourceAnswer sourceAnswer(const CalendarFiles::SourceReport &report);

} // namespace Cli
