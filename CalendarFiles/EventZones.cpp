// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/EventZones.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>

namespace CalendarFiles
{

namespace
{

using KestCore::Calendar;

constexpr std::int64_t kDay = 86'400;
constexpr std::int64_t kAround = 400 * kDay; // a window's year has its changes, and one before
constexpr std::int64_t kMostSteps = 2'000;   // of one rule of a zone

std::int64_t secondOf(Base::Instant instant)
{
    return static_cast<std::int64_t>(std::floor(Base::seconds1970(instant)));
}

// "Europe/Berlin", also behind the name of whoever made the file:
// "/example.org/1/Europe/Berlin".
std::optional<Calendar> systemZone(std::string_view name)
{
    while (!name.empty()) {
        if (auto zone = Calendar::inZone(name); zone && !name.starts_with('/')) {
            return *std::move(zone);
        }
        const std::size_t slash = name.find('/');
        if (slash == std::string_view::npos || name.size() > 200) {
            break;
        }
        // A last piece alone, such as the "Berlin" of "Mine/Berlin", names no zone.
        name = name.substr(slash + 1);
        if (!name.contains('/')) {
            break;
        }
    }
    return std::nullopt;
}

} // namespace

EventZones::EventZones(const CalendarDocument &document, EventParser &parser,
                       const Calendar &viewer, Window window, Budget &budget)
    : m_document(document), m_parser(parser), m_viewer(viewer), m_window(window),
      m_budget(budget)
{
}

Base::Instant EventZones::instantOf(const EventTime &time)
{
    const Zone *const zone = zoneOf(time);
    if (zone == nullptr) {
        return Base::fromSeconds1970(static_cast<double>(time.wall));
    }
    const auto aheadAt = [&](std::int64_t second) {
        const EventTime utc{.wall = second, .clock = EventTime::Clock::utc};
        return wallAt(instantOf(utc), time) - second;
    };
    const std::int64_t before = aheadAt(time.wall - kDay);
    const std::int64_t after = aheadAt(time.wall + kDay);
    std::int64_t second = time.wall - before;
    if (aheadAt(second) != before && aheadAt(time.wall - after) == after) {
        second = time.wall - after;
    }
    return Base::fromSeconds1970(static_cast<double>(second));
}

std::int64_t EventZones::wallAt(Base::Instant instant, const EventTime &clock)
{
    const Zone *const zone = zoneOf(clock);
    const std::int64_t second = secondOf(instant);
    if (zone == nullptr) {
        return second;
    }
    if (const auto *const calendar = std::get_if<Calendar>(zone); calendar != nullptr) {
        return second + static_cast<std::int64_t>(calendar->offsetAt(instant).ahead.count());
    }
    const auto &[first, changes] = std::get<Changes>(*zone);
    const auto next = std::ranges::upper_bound(changes, second, {}, &Change::at);
    return second + (next == changes.begin() ? first : std::prev(next)->ahead);
}

// Null for UTC.
const EventZones::Zone *EventZones::zoneOf(const EventTime &time)
{
    switch (time.clock) {
    case EventTime::Clock::utc:
        return nullptr;
    case EventTime::Clock::zone:
        break;
    case EventTime::Clock::date:
    case EventTime::Clock::floating:
        return &m_viewer;
    }
    auto found = m_zones.find(time.zone);
    if (found == m_zones.end()) {
        found = m_zones.emplace(time.zone, resolve(time.zone)).first;
    }
    return &found->second;
}

EventZones::Zone EventZones::resolve(const std::string &name)
{
    if (auto zone = systemZone(name)) {
        return *std::move(zone);
    }
    const auto own = m_document.zones.find(name);
    return own == m_document.zones.end() ? m_viewer : Zone{changesOf(own->second)};
}

EventZones::Changes EventZones::changesOf(const std::vector<EventText> &rules)
{
    Changes zone;
    for (const EventText &rule : rules) {
        addOnsets(rule, zone.changes);
    }
    std::ranges::stable_sort(zone.changes, {}, &Change::at);
    const auto earliest = std::ranges::min_element(
        rules, {}, [](const EventText &rule) { return rule.start.wall; });
    if (earliest != rules.end()) {
        zone.first = earliest->offsetFrom.value_or(0);
    }
    return zone;
}

void EventZones::addOnsets(const EventText &rule, std::vector<Change> &changes)
{
    const std::int64_t from = rule.offsetFrom.value_or(0);
    const std::int64_t to = rule.offsetTo.value_or(0);
    const auto add = [&](std::int64_t wall) {
        changes.push_back({.at = wall - from, .ahead = to});
    };
    add(rule.start.wall);
    for (const ExtraDate &extra : rule.extra) {
        add(extra.start.wall);
    }
    for (const std::string &text : rule.rules) {
        RuleSpan span{.rule = text,
                      .first = rule.start,
                      .from = secondOf(m_window.from) - kAround,
                      .to = secondOf(m_window.to) + kAround,
                      .most = std::min(m_budget.steps, kMostSteps)};
        span.first.clock = EventTime::Clock::floating;
        const auto end = m_parser.endOf(text);
        if (end) {
            span.until = end->clock == EventTime::Clock::utc ? end->wall + from : end->wall;
        }
        if (end || text.contains("COUNT=")) {
            span.from = rule.start.wall; // the last change of a rule that is over holds on
        }
        if (const auto onsets = m_parser.dates(span)) {
            m_budget.steps -= onsets->steps;
            std::ranges::for_each(onsets->dates, add);
        }
    }
}

} // namespace CalendarFiles
