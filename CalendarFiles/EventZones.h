// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/CalendarDocument.h"
#include "KestCore/Devotional/Calendar.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace CalendarFiles
{

// What reading out a calendar may still cost. Counted, not timed, so that the same files give
// the same events on every machine.
struct Budget {
    std::int64_t steps = 300'000; // of rules
    std::size_t events = 20'000;  // that come of them
};

struct Window {
    Base::Instant from{};
    Base::Instant to{}; // the first instant that is not in it
};

// The clocks of one calendar file, as far as a window needs them. A name that the system knows
// is told by the system, whose rules are current; another by the file's own rules; and one that
// neither knows is the clock of whoever looks.
class EventZones
{
public:
    // All of them must outlive this.
    EventZones(const CalendarDocument &document, EventParser &parser,
               const KestCore::Calendar &viewer, Window window, Budget &budget);

    // A time that the clock skips is told by how it went before; one that it shows twice is the
    // first. A date is its midnight for the viewer.
    Base::Instant instantOf(const EventTime &time);
    // What that clock shows.
    std::int64_t wallAt(Base::Instant instant, const EventTime &clock);

private:
    struct Change {
        std::int64_t at{}; // seconds since 1970 UTC
        std::int64_t ahead{};
    };
    // Of a file's own zone, with how it was before the first change.
    struct Changes {
        std::int64_t first{};
        std::vector<Change> changes{}; // rising
    };
    using Zone = std::variant<KestCore::Calendar, Changes>;

    const Zone *zoneOf(const EventTime &time);
    Zone resolve(const std::string &name);
    Changes changesOf(const std::vector<EventText> &rules);
    void addOnsets(const EventText &rule, std::vector<Change> &changes);

    const CalendarDocument &m_document;
    EventParser &m_parser;
    Zone m_viewer;
    Window m_window;
    Budget &m_budget;
    std::map<std::string, Zone> m_zones{};
};

} // namespace CalendarFiles
