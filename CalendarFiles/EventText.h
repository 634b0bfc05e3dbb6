// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// What the iCalendar library does for this folder, in values: it reads one event and counts
// out one rule. It lies in a module that is loaded with the first calendar.
namespace CalendarFiles
{

using Base::Result;

// A time on a clock that the event names: seconds since 1970-01-01 00:00 of that clock.
struct EventTime {
    enum class Clock : std::uint8_t {
        date,     // a whole day, wherever one is
        floating, // the clock of whoever looks
        utc,
        zone,
    };

    std::int64_t wall{};
    Clock clock{};
    std::string zone{}; // the zone's name as the file has it

    bool operator==(const EventTime &) const = default;
};

// Days are days of the calendar, whatever the clock does between.
struct EventLength {
    std::int64_t days{};
    std::int64_t seconds{};

    bool operator==(const EventLength &) const = default;
};

// A further date of a series; without an end or a length it lasts as long as the others.
struct ExtraDate {
    EventTime start{};
    std::optional<EventTime> end{};
    std::optional<EventLength> length{};

    bool operator==(const ExtraDate &) const = default;
};

// One event of a file as it stands there, or one rule of its time zones.
struct EventText {
    std::string uid{};
    std::string title{};
    std::string place{};
    EventTime start{};
    std::optional<EventTime> end{};
    std::optional<EventLength> length{};
    std::vector<std::string> rules{};
    std::vector<ExtraDate> extra{};
    std::vector<EventTime> except{};
    std::optional<EventTime> replaces{}; // the date of its series in whose place it stands
    std::int64_t sequence{};
    bool isCancelled{};
    std::optional<std::int64_t> offsetFrom{}; // of a time zone's rule, seconds east of UTC
    std::optional<std::int64_t> offsetTo{};

    bool operator==(const EventText &) const = default;
};

// A rule to count out. Times are of the clock of the first date.
struct RuleSpan {
    std::string rule{};
    EventTime first{};
    std::optional<std::int64_t> until{}; // where the rule's own end lies on that clock
    std::int64_t from{};                 // what is before need not be told
    std::int64_t to{};                   // the last that is wanted
    std::int64_t most{};                 // steps that this may take
};

struct RuleDates {
    std::vector<std::int64_t> dates{}; // rising
    std::int64_t steps{};              // that it took
    bool isWhole = true;               // false: it would have taken more than it may
};

class EventParser
{
public:
    EventParser() = default;
    virtual ~EventParser() = default;
    EventParser(const EventParser &) = delete;
    EventParser &operator=(const EventParser &) = delete;

    // Nothing for what is no event, one without a start, or one with a value that is none.
    virtual std::optional<EventText> event(const std::string &text) = 0;

    // The end that the rule itself names. Nothing when it names none.
    virtual std::optional<EventTime> endOf(const std::string &rule) = 0;

    // Nothing for a rule that cannot be read, or that repeats by the minute.
    virtual std::optional<RuleDates> dates(const RuleSpan &span) = 0;
};

// Loads the library. Fails with unavailable where the module is missing.
[[nodiscard]] Result<std::unique_ptr<EventParser>> openEventParser();

// What the module exports under the name kestOpenEventParser; the caller owns it.
using OpenEventParser = EventParser *();

} // namespace CalendarFiles
