// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/Agenda.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <set>
#include <tuple>

namespace CalendarFiles
{

namespace
{

using KestCore::Calendar;
using Clock = EventTime::Clock;

constexpr std::int64_t kDay = 86'400;
constexpr std::int64_t kMostStepsOfARule = 50'000;

std::int64_t dayOf(std::int64_t wall)
{
    return std::chrono::floor<std::chrono::days>(std::chrono::seconds{wall}).count();
}

std::int64_t secondOf(Base::Instant instant)
{
    return static_cast<std::int64_t>(std::floor(Base::seconds1970(instant)));
}

// Dates that a series does not have.
class Gaps
{
public:
    void add(const EventTime &time, EventZones &zones)
    {
        if (time.clock == Clock::date) {
            m_days.insert(dayOf(time.wall));
        } else {
            m_seconds.insert(secondOf(zones.instantOf(time)));
        }
    }

    bool holds(const EventTime &time, EventZones &zones) const
    {
        return (!m_days.empty() && m_days.contains(dayOf(time.wall))) ||
               (!m_seconds.empty() && m_seconds.contains(secondOf(zones.instantOf(time))));
    }

private:
    std::set<std::int64_t> m_days{};
    std::set<std::int64_t> m_seconds{};
};

// Counts out the events of one file.
class Reckoning
{
public:
    Reckoning(Agenda &agenda, const CalendarDocument &document, std::string_view name,
              EventParser &parser, const Calendar &viewer, Window window, Budget &budget)
        : m_agenda(agenda), m_document(document), m_name(name), m_parser(parser),
          m_viewer(viewer), m_window(window), m_budget(budget),
          m_zones(document, parser, viewer, window, budget)
    {
    }

    void run();

private:
    void addSeries(const EventText &event);
    std::optional<std::vector<EventTime>> starts(const EventText &event);
    bool addRule(const EventText &event, const std::string &rule,
                 std::vector<EventTime> &starts);
    void add(const EventText &event, const EventTime &start,
             const std::optional<EventTime> &end, const std::optional<EventLength> &length);
    Base::Instant endOf(const EventText &event, const EventTime &start,
                        const std::optional<EventTime> &end,
                        const std::optional<EventLength> &length);
    std::int64_t daysOf(const EventText &event) const;

    Agenda &m_agenda;
    const CalendarDocument &m_document;
    std::string m_name;
    EventParser &m_parser;
    const Calendar &m_viewer;
    Window m_window;
    Budget &m_budget;
    EventZones m_zones;
    std::map<std::string, Gaps, std::less<>> m_replaced{}; // by the series' uid
};

void Reckoning::run()
{
    for (const EventText &event : m_document.events) {
        if (event.replaces && !event.uid.empty()) {
            m_replaced[event.uid].add(*event.replaces, m_zones);
        }
    }
    for (const EventText &event : m_document.events) {
        if (event.isCancelled) {
            continue;
        }
        if (event.replaces) {
            add(event, event.start, event.end, event.length);
        } else {
            addSeries(event);
        }
    }
}

void Reckoning::addSeries(const EventText &event)
{
    const auto dates = starts(event);
    if (!dates) {
        ++m_agenda.broken;
        return;
    }
    Gaps gaps;
    for (const EventTime &except : event.except) {
        gaps.add(except, m_zones);
    }
    const auto replaced = m_replaced.find(event.uid);
    const auto isMissing = [&](const EventTime &start) {
        return gaps.holds(start, m_zones) ||
               (replaced != m_replaced.end() && replaced->second.holds(start, m_zones));
    };
    for (const EventTime &start : *dates) {
        if (!isMissing(start)) {
            add(event, start, event.end, event.length);
        }
    }
    for (const ExtraDate &extra : event.extra) {
        const bool isKnown = std::ranges::find(*dates, extra.start) != dates->end();
        if (!isKnown && !isMissing(extra.start)) {
            const bool isOwn = extra.end || extra.length;
            EventText single = event;
            if (isOwn) {
                single.start = extra.start;
                single.end = extra.end;
                single.length = extra.length;
            }
            add(single, extra.start, single.end, single.length);
        }
    }
}

// The first date and those of the rules. Nothing where a rule cannot be read.
std::optional<std::vector<EventTime>> Reckoning::starts(const EventText &event)
{
    std::vector<EventTime> starts{event.start};
    for (const std::string &rule : event.rules) {
        if (!addRule(event, rule, starts)) {
            return std::nullopt;
        }
    }
    std::ranges::sort(starts, {}, &EventTime::wall);
    const auto doubled = std::ranges::unique(starts);
    starts.erase(doubled.begin(), doubled.end());
    return starts;
}

bool Reckoning::addRule(const EventText &event, const std::string &rule,
                        std::vector<EventTime> &starts)
{
    // A clock is never more than two days away from UTC, nor a day from its summer time.
    RuleSpan span{.rule = rule,
                  .first = event.start,
                  .from = secondOf(m_window.from) - (daysOf(event) + 2) * kDay,
                  .to = secondOf(m_window.to) + 2 * kDay,
                  .most = std::min(m_budget.steps, kMostStepsOfARule)};
    if (const auto end = m_parser.endOf(rule)) {
        if (end->clock == Clock::utc) {
            span.until = m_zones.wallAt(m_zones.instantOf(*end), event.start);
        } else {
            // An end that is a date is the whole of it.
            span.until = end->wall + (end->clock == Clock::date ? kDay - 1 : 0);
        }
    }
    const auto found = m_parser.dates(span);
    if (!found) {
        return false;
    }
    m_budget.steps -= found->steps;
    m_agenda.isWhole = m_agenda.isWhole && found->isWhole;
    for (const std::int64_t wall : found->dates) {
        starts.push_back(event.start);
        starts.back().wall = wall;
    }
    return true;
}

// How long one date of it lasts at most, in whole days.
std::int64_t Reckoning::daysOf(const EventText &event) const
{
    if (event.length) {
        return event.length->days + event.length->seconds / kDay + 1;
    }
    return event.end ? std::max<std::int64_t>(0, event.end->wall - event.start.wall) / kDay + 2
                     : 1;
}

Base::Instant Reckoning::endOf(const EventText &event, const EventTime &start,
                               const std::optional<EventTime> &end,
                               const std::optional<EventLength> &length)
{
    EventTime last = start;
    if (start.clock == Clock::date) {
        std::int64_t days = length ? length->days : 1;
        if (end) {
            days = dayOf(end->wall) - dayOf(event.start.wall);
        }
        last.wall += std::max<std::int64_t>(1, days) * kDay;
        return m_zones.instantOf(last);
    }
    const Base::Instant begin = m_zones.instantOf(start);
    if (length) {
        last.wall += length->days * kDay;
        return std::max(begin, m_zones.instantOf(last)) +
               Base::Seconds{static_cast<double>(length->seconds)};
    }
    if (!end) {
        return begin;
    }
    // Every date of a series lasts exactly as long as the first.
    const Base::Seconds lasts = m_zones.instantOf(*end) - m_zones.instantOf(event.start);
    return begin + std::max(lasts, Base::Seconds{0});
}

void Reckoning::add(const EventText &event, const EventTime &start,
                    const std::optional<EventTime> &end,
                    const std::optional<EventLength> &length)
{
    Occurrence found{.start = m_zones.instantOf(start),
                     .end = endOf(event, start, end, length),
                     .isAllDay = start.clock == Clock::date};
    const bool isInside = found.start < m_window.to &&
                          (found.end > m_window.from || found.start >= m_window.from);
    if (!isInside) {
        return;
    }
    if (m_budget.events == 0) {
        m_agenda.isWhole = false;
        return;
    }
    --m_budget.events;
    found.firstDay = m_viewer.dayNumber(found.start);
    found.lastDay = std::max(found.firstDay, m_viewer.dayNumber(found.end - Base::Seconds{1}));
    found.uid = event.uid;
    found.title = event.title;
    found.place = event.place;
    found.calendar = m_name;
    m_agenda.events.push_back(std::move(found));
}

} // namespace

void addOccurrences(Agenda &agenda, const CalendarDocument &document, std::string_view name,
                    EventParser &parser, const Calendar &viewer, Window window, Budget &budget)
{
    Reckoning{agenda, document, name, parser, viewer, window, budget}.run();
}

void arrange(Agenda &agenda)
{
    const auto key = [](const Occurrence &event) {
        return std::tuple{event.firstDay,
                          !event.isAllDay,
                          event.start,
                          event.end,
                          std::string_view{event.title},
                          std::string_view{event.uid}};
    };
    std::ranges::stable_sort(agenda.events, {}, key);
    const auto doubled =
        std::ranges::unique(agenda.events, [&](const Occurrence &a, const Occurrence &b) {
            return !a.uid.empty() && key(a) == key(b);
        });
    agenda.events.erase(doubled.begin(), doubled.end());
}

std::vector<AgendaDay> agendaDays(const Agenda &agenda, std::int64_t firstDay, int count)
{
    std::vector<AgendaDay> days;
    for (int at = 0; at < count; ++at) {
        days.push_back({.date = std::chrono::sys_days{std::chrono::days{firstDay + at}}});
    }
    for (const Occurrence &event : agenda.events) {
        const std::int64_t last = std::min(event.lastDay, firstDay + count - 1);
        for (std::int64_t day = std::max(event.firstDay, firstDay); day <= last; ++day) {
            days[static_cast<std::size_t>(day - firstDay)].events.push_back(event);
        }
    }
    for (AgendaDay &day : days) {
        std::ranges::stable_partition(day.events, &Occurrence::isAllDay);
    }
    return days;
}

std::optional<Occurrence> nextEvent(const Agenda &agenda, Base::Instant now)
{
    std::optional<Occurrence> next;
    for (const Occurrence &event : agenda.events) {
        if (!event.isAllDay && event.start > now && (!next || event.start < next->start)) {
            next = event;
        }
    }
    return next;
}

Base::Instant startOfDay(const Calendar &calendar, std::int64_t day)
{
    // From a moment of the day before, whatever the clock: no day is shorter than 23 hours.
    const Base::Instant noon =
        Base::fromSeconds1970(static_cast<double>(day * kDay - kDay / 2));
    const Base::Instant before = noon - calendar.offsetAt(noon).ahead;
    return calendar.nextDateChange(before);
}

} // namespace CalendarFiles
