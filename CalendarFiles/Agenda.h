// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/EventZones.h"
#include "KestCore/Prayer/PrayerCalculator.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace CalendarFiles
{

// One event on one date, as somebody at one clock sees it.
struct Occurrence {
    std::string uid{};
    std::string title{}; // may be empty
    std::string place{}; // may be empty
    std::string calendar{};
    Base::Instant start{};
    Base::Instant end{};
    std::int64_t firstDay{}; // days since 1970 on the viewer's calendar
    std::int64_t lastDay{};  // the last that it is on; an end at midnight is not on the next
    bool isAllDay{};

    bool operator==(const Occurrence &) const = default;
};

struct Agenda {
    std::vector<Occurrence> events{}; // by day, whole days first, then by their start
    std::size_t broken{};             // events whose rule could not be read
    bool isWhole = true;              // false: there was more than the budget pays for
};

// Adds what happens of one file's events in the window. Cancelled events are left out, and a
// date of a series gives way to the event that replaces it.
void addOccurrences(Agenda &agenda, const CalendarDocument &document, std::string_view name,
                    EventParser &parser, const KestCore::Calendar &viewer, Window window,
                    Budget &budget);

// Puts them in order. The same event out of two files stands once.
void arrange(Agenda &agenda);

struct AgendaDay {
    KestCore::LocalDate date{};
    std::vector<Occurrence> events{};
};

// So many days from this one on, each with all that is on it.
std::vector<AgendaDay> agendaDays(const Agenda &agenda, std::int64_t firstDay, int count);

// The first event with a time of day that begins after `now`.
std::optional<Occurrence> nextEvent(const Agenda &agenda, Base::Instant now);

// The instant at which a day begins on this calendar.
Base::Instant startOfDay(const KestCore::Calendar &calendar, std::int64_t day);

} // namespace CalendarFiles
