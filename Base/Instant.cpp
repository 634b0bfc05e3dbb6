// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Instant.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace Base
{

namespace
{

namespace chrono = std::chrono;

// Walks over fixed-width decimal fields and separators; any mismatch sticks.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    int digits(std::size_t width)
    {
        int value = 0;
        if (m_rest.size() < width) {
            m_failed = true;
            return 0;
        }
        for (const char c : m_rest.substr(0, width)) {
            m_failed = m_failed || c < '0' || c > '9';
            value = value * 10 + (c - '0');
        }
        m_rest.remove_prefix(width);
        return value;
    }

    void expect(char c) { m_failed = !accept(c) || m_failed; }

    bool accept(char c)
    {
        if (m_rest.empty() || m_rest.front() != c) {
            return false;
        }
        m_rest.remove_prefix(1);
        return true;
    }

    double fraction()
    {
        double value = 0;
        double weight = 0.1;
        const std::size_t before = m_rest.size();
        while (!m_rest.empty() && m_rest.front() >= '0' && m_rest.front() <= '9') {
            value += weight * (m_rest.front() - '0');
            weight /= 10;
            m_rest.remove_prefix(1);
        }
        m_failed = m_failed || m_rest.size() == before;
        return value;
    }

    bool finished() const { return !m_failed && m_rest.empty(); }

private:
    std::string_view m_rest;
    bool m_failed = false;
};

constexpr int kMinutesOfDay = 24 * 60;

// ±HH:MM; a whole day, which no offset is, for minutes beyond the hour.
int offsetMinutes(Scanner &scan)
{
    const int sign = scan.accept('-') ? -1 : 1;
    if (sign > 0) {
        scan.expect('+');
    }
    const int hours = scan.digits(2);
    scan.expect(':');
    const int minutes = scan.digits(2);
    return minutes < 60 ? sign * (hours * 60 + minutes) : kMinutesOfDay;
}

} // namespace

Instant wallClock() { return chrono::time_point_cast<Seconds>(chrono::system_clock::now()); }

Result<std::string> toIso8601(Instant instant)
{
    constexpr double kYear1 = -62'135'596'800.0;     // 0001-01-01T00:00:00Z
    constexpr double kYear10000 = 253'402'300'800.0; // 10000-01-01T00:00:00Z
    const double ms = std::round(seconds1970(instant) * 1000.0);
    if (!(ms >= kYear1 * 1000.0 && ms < kYear10000 * 1000.0)) {
        return std::unexpected(KestError::invalidData("This time cannot be written as a date"));
    }
    const chrono::sys_time<chrono::milliseconds> time{
        chrono::milliseconds{static_cast<std::int64_t>(ms)}};
    const auto day = chrono::floor<chrono::days>(time);
    const chrono::year_month_day date{day};
    const chrono::hh_mm_ss clock{time - day};
    auto text =
        fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}", static_cast<int>(date.year()),
                    static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                    clock.hours().count(), clock.minutes().count(), clock.seconds().count());
    if (clock.subseconds().count() != 0) {
        text += fmt::format(".{:03}", clock.subseconds().count());
    }
    return text + "Z";
}

Result<Instant> fromIso8601(std::string_view text)
{
    Scanner scan{text};
    const int year = scan.digits(4);
    scan.expect('-');
    const int month = scan.digits(2);
    scan.expect('-');
    const int day = scan.digits(2);
    scan.expect('T');
    const int hour = scan.digits(2);
    scan.expect(':');
    const int minute = scan.digits(2);
    scan.expect(':');
    const int second = scan.digits(2);
    const double fraction = scan.accept('.') ? scan.fraction() : 0.0;

    const int offset = scan.accept('Z') ? 0 : offsetMinutes(scan);

    const chrono::year_month_day date{chrono::year{year},
                                      chrono::month{static_cast<unsigned>(month)},
                                      chrono::day{static_cast<unsigned>(day)}};
    const bool inRange = date.ok() && hour < 24 && minute < 60 && second < 60 &&
                         std::abs(offset) < kMinutesOfDay;
    if (!scan.finished() || !inRange) {
        return std::unexpected(KestError::invalidData(
            "Write a time as 2026-11-21T08:30:00Z or with an offset such as +03:00"));
    }
    const double dayStart =
        static_cast<double>(chrono::sys_days{date}.time_since_epoch().count()) * 86'400.0;
    const double inDay = (hour * 60.0 + minute - offset) * 60.0 + second + fraction;
    return fromSeconds1970(dayStart + inDay);
}

} // namespace Base
