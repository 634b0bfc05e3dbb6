// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace KestCore
{

// How far the clocks of one time zone are from UTC, over all time. Read from the system's time
// zone files, which are kept current: ICU carries a copy of its own that stays as old as the
// library, and Debian 12's has no summer time for Egypt.
class ZoneRules
{
public:
    // A stretch of time in which the offset stays the same.
    struct Span {
        std::int32_t offset{}; // seconds east of UTC
        std::int64_t end{};    // seconds since 1970 at which it ends; the highest: never
    };

    // The rules of an identifier such as "Africa/Cairo". Fails with invalidData when the
    // system knows no such zone.
    [[nodiscard]] static Result<ZoneRules> ofIdentifier(std::string_view identifier);

    // The rules of this machine: TZ, else the system's choice; UTC when neither can be read.
    static ZoneRules ofHost();

    // The stretch that holds the second.
    Span spanAt(std::int64_t second) const;

    // A day of the year on which summer time begins or ends, every year again.
    struct YearlyDay {
        enum class Kind : std::uint8_t {
            weekdayOfMonth, // the week-th weekday of the month, the fifth being the last
            dayWithoutLeap, // 1 to 365, 29 February never counted
            dayOfYear,      // 0 to 365
        };
        Kind kind{};
        int month{};
        int week{};
        int day{};             // a weekday, 0 being Sunday, or a day of the year
        std::int32_t second{}; // on the clock of that day; may lie outside of the day
    };

    // What holds after the last change on record, for ever.
    struct Tail {
        std::int32_t standardOffset{};
        std::int32_t summerOffset{};
        std::optional<YearlyDay> summerBegins{}; // absent with summerEnds: no summer time
        std::optional<YearlyDay> summerEnds{};
    };

    // A new offset, from a second since 1970 on.
    struct Change {
        std::int64_t at{};
        std::int32_t offset{};
    };

private:
    // A time zone file's bytes; nothing when they are none.
    static std::optional<ZoneRules> fromFile(std::string_view bytes);
    Span tailSpanAt(std::int64_t second) const;

    std::vector<Change> m_changes{}; // rising
    std::int32_t m_firstOffset{};    // before the first change
    Tail m_tail{};
};

} // namespace KestCore
