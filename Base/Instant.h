// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"

#include <chrono>
#include <string>
#include <string_view>

namespace Base
{

// A moment on the wall clock: seconds since 1970-01-01 UTC with a fraction.
using Seconds = std::chrono::duration<double>;
using Instant = std::chrono::time_point<std::chrono::system_clock, Seconds>;

// 2001-01-01 UTC, the zero of the date fields in documents, in seconds since 1970.
inline constexpr double kReferenceDateSince1970 = 978'307'200.0;

inline Instant fromSeconds1970(double seconds) { return Instant{Seconds{seconds}}; }
inline Instant fromSeconds2001(double seconds)
{
    return fromSeconds1970(seconds + kReferenceDateSince1970);
}
inline Instant fromMilliseconds1970(double ms) { return fromSeconds1970(ms / 1000.0); }

inline double seconds1970(Instant instant) { return instant.time_since_epoch().count(); }
inline double seconds2001(Instant instant)
{
    return seconds1970(instant) - kReferenceDateSince1970;
}
inline double milliseconds1970(Instant instant) { return seconds1970(instant) * 1000.0; }

// The system's wall clock, for the edges of the program; engines are given their time.
Instant wallClock();

// "2026-11-21T08:30:00Z"; with milliseconds where the instant has a fraction of a second.
// Fails outside the years 0001 to 9999 and for a value that is not finite.
[[nodiscard]] Result<std::string> toIso8601(Instant instant);

// Reads YYYY-MM-DDTHH:MM:SS with an optional fraction and Z or ±HH:MM.
[[nodiscard]] Result<Instant> fromIso8601(std::string_view text);

} // namespace Base
