// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/EventText.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace CalendarFiles
{

using Base::KestError;

// Bounds, so that a hostile file costs no more than a large honest one.
inline constexpr std::size_t kLargestFile = 16'000'000; // bytes
inline constexpr std::size_t kMostEvents = 20'000;      // of one file
inline constexpr std::size_t kMostLines = 2'000;        // of one event
inline constexpr std::size_t kLongestLine = 65'536;     // bytes, unfolded
inline constexpr std::size_t kMostZones = 200;
inline constexpr std::size_t kMostZoneRules = 100; // of one zone

// One calendar file as it was read: values, not yet counted out.
struct CalendarDocument {
    std::string name{}; // the calendar's own, may be empty
    std::vector<EventText> events{};
    std::map<std::string, std::vector<EventText>> zones{}; // their rules, by the zone's name
    std::size_t broken{};                                  // events that could not be read
    std::size_t beyond{};                                  // events after the most there may be

    bool operator==(const CalendarDocument &) const = default;
};

// Reads what can be read. Of an event that stands there twice the later edition counts. Fails
// with invalidData for bytes that are no calendar, or too many.
[[nodiscard]] Result<CalendarDocument> readCalendar(std::string_view bytes,
                                                    EventParser &parser);

} // namespace CalendarFiles
