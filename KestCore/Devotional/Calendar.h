// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Devotional/ZoneRules.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace KestCore
{

// What a calendar on the wall and a clock beside it show.
struct LocalTime {
    int year{};
    int month{}; // 1 to 12
    int day{};   // 1 to 31
    int hour{};
    int minute{};
    int second{};
    int weekday{}; // 0 is Sunday

    bool operator==(const LocalTime &) const = default;
};

// The Gregorian calendar of one time zone. A value that is cheap to copy and safe to share
// between threads. It tells right for the years -9999 to 9999; an instant beyond is taken as
// the nearest within.
class Calendar
{
public:
    // Fails with invalidData when the system knows no such time zone.
    [[nodiscard]] static Result<Calendar> inZone(std::string_view identifier);

    // In the time zone that this machine has now; ask again when it may have changed.
    static Calendar ofHost();

    LocalTime at(Base::Instant instant) const;

    // The local date, as days since 1970-01-01.
    std::int64_t dayNumber(Base::Instant instant) const;

    // How far the clock is from UTC, and the instant at which that changes next (infinity when
    // it never does).
    struct Offset {
        Base::Seconds ahead{};
        Base::Instant end{};
    };
    Offset offsetAt(Base::Instant instant) const;

    // The first instant after this one at which the local date is another: midnight, or the
    // moment that a clock jumps over it.
    Base::Instant nextDateChange(Base::Instant instant) const;

private:
    explicit Calendar(ZoneRules rules);

    std::int64_t localSecond(Base::Instant instant) const;

    std::shared_ptr<const ZoneRules> m_rules;
};

} // namespace KestCore
