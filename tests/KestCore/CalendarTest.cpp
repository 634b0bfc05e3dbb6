// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Calendar.h"

#include "Base/File.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <limits>
#include <optional>

namespace KestCore
{

namespace
{

namespace fs = std::filesystem;

// Sets a variable for one scope.
class Environment
{
public:
    Environment(const char *name, const std::string &value) : m_name(name)
    {
        if (const char *before = std::getenv(name)) {
            m_before = before;
        }
        setenv(name, value.c_str(), 1);
        tzset();
    }
    ~Environment()
    {
        if (m_before) {
            setenv(m_name, m_before->c_str(), 1);
        } else {
            unsetenv(m_name);
        }
        tzset();
    }
    Environment(const Environment &) = delete;
    Environment &operator=(const Environment &) = delete;

private:
    const char *m_name;
    std::optional<std::string> m_before{};
};

// The C library reads the same zones with code of its own.
LocalTime systemTime(std::int64_t second)
{
    const std::time_t time = second;
    std::tm parts{};
    localtime_r(&time, &parts);
    return {.year = parts.tm_year + 1900,
            .month = parts.tm_mon + 1,
            .day = parts.tm_mday,
            .hour = parts.tm_hour,
            .minute = parts.tm_min,
            .second = parts.tm_sec,
            .weekday = parts.tm_wday};
}

Base::Instant at(std::int64_t second)
{
    return Base::fromSeconds1970(static_cast<double>(second));
}

std::int64_t utc(std::string_view iso)
{
    return static_cast<std::int64_t>(Base::seconds1970(*Base::fromIso8601(iso)));
}

std::string contents(const fs::path &file) { return *Base::readFile(file); }

void write(const fs::path &file, std::string_view bytes)
{
    std::ofstream{file, std::ios::binary} << bytes;
}

} // namespace

// Three days around a change, every second of them: what the clock shows, when its offset ends
// and when its date changes.
TEST(Calendar, FollowsTheClockThroughEveryChange)
{
    struct Case {
        const char *zone;
        const char *begin;
    };
    for (const auto &[zone, begin] : {
             Case{"Europe/Berlin", "2026-03-28T00:00:00Z"},
             Case{"Europe/Berlin", "2026-10-24T00:00:00Z"},
             Case{"Europe/Berlin", "2093-03-28T00:00:00Z"}, // long after the last on record
             Case{"America/New_York", "2026-10-31T00:00:00Z"},
             Case{"Australia/Lord_Howe", "2026-10-03T00:00:00Z"}, // half an hour
             Case{"Australia/Lord_Howe", "2061-04-02T00:00:00Z"},
             Case{"Africa/Casablanca", "2026-02-14T00:00:00Z"},
             Case{"Africa/Cairo", "2026-04-23T00:00:00Z"},      // skips midnight
             Case{"America/Sao_Paulo", "2018-02-17T00:00:00Z"}, // repeats the hour before it
             Case{"America/St_Johns", "2010-11-06T00:00:00Z"},  // goes back to the day before
             Case{"Pacific/Apia", "2011-12-29T00:00:00Z"},      // a day that never was
             Case{"Europe/Amsterdam", "1937-06-30T00:00:00Z"},  // offsets with seconds
         }) {
        SCOPED_TRACE(std::string{zone} + " " + begin);
        const Environment environment{"TZ", zone};
        const auto calendar = Calendar::inZone(zone);
        ASSERT_TRUE(calendar);
        const std::int64_t first = utc(begin);
        Base::Instant lastChange = at(first);
        LocalTime before = systemTime(first);
        for (std::int64_t second = first; second < first + std::int64_t{3} * 86'400; ++second) {
            const LocalTime expected = systemTime(second);
            ASSERT_EQ(calendar->at(at(second)), expected) << second;
            if (expected.day != before.day) {
                ASSERT_EQ(calendar->nextDateChange(lastChange), at(second));
                lastChange = at(second);
            }
            before = expected;
        }
        ASSERT_GT(lastChange, at(first));
    }
}

RC_GTEST_PROP(Calendar, AgreesWithTheSystemEverywhereAtAnyTime, ())
{
    const auto zone = *rc::gen::element<std::string>(
        "Africa/Cairo", "Africa/Casablanca", "America/Godthab", "America/Santiago",
        "Antarctica/Troll", "Asia/Gaza", "Asia/Kathmandu", "Asia/Tehran", "Europe/Dublin",
        "Europe/Istanbul", "Pacific/Chatham", "UTC");
    const Environment environment{"TZ", zone};
    const auto second = *rc::gen::inRange<std::int64_t>(-5'000'000'000, 20'000'000'000);
    const auto fraction = *rc::gen::element(0.0, 0.25, 0.999);
    const Calendar calendar = *Calendar::inZone(zone);
    const auto instant = at(second) + Base::Seconds{fraction};
    RC_ASSERT(calendar.at(instant) == systemTime(second));

    // The offset holds until its end and no longer.
    const auto offset = calendar.offsetAt(instant);
    if (const double end = Base::seconds1970(offset.end); std::isfinite(end)) {
        const auto offsetJustBefore = calendar.offsetAt(at(static_cast<std::int64_t>(end) - 1));
        RC_ASSERT(instant < offset.end);
        RC_ASSERT(offsetJustBefore.ahead == offset.ahead);
        RC_ASSERT(offsetJustBefore.end == offset.end);
    }
}

TEST(Calendar, OfTheHostObeysTheRuleThatTheSystemIsGiven)
{
    for (const char *rule :
         {"Asia/Karachi", ":Asia/Karachi", "/usr/share/zoneinfo/Asia/Karachi", "<+0330>-3:30",
          "EST5EDT,M3.2.0,M11.1.0", "XST-1:30XDT-2,J60/0,300/23:30",
          "AAA3BBB,M9.1.6/24,M4.5.0/-2", "", "no time zone"}) {
        SCOPED_TRACE(rule);
        const Environment environment{"TZ", rule};
        const Calendar calendar = Calendar::ofHost();
        for (std::int64_t second = utc("2027-12-20T00:00:00Z");
             second < utc("2029-01-10T00:00:00Z"); second += 1800) {
            ASSERT_EQ(calendar.at(at(second)), systemTime(second)) << second;
        }
    }
}

TEST(Calendar, KeepsASummerTimeThatBeginsAsItEnds)
{
    const Environment environment{"TZ", "XXX3EDT4,0/0,J365/23"};
    const Calendar calendar = Calendar::ofHost();
    for (const char *second : {"2027-12-31T12:00:00Z", "2028-01-01T02:59:59Z",
                               "2028-01-01T03:00:00Z", "2028-07-01T00:00:00Z"}) {
        EXPECT_EQ(calendar.offsetAt(at(utc(second))).ahead.count(), -4.0 * 3600.0) << second;
    }
}

TEST(Calendar, KnowsNoZoneThatIsNone)
{
    for (const char *identifier :
         {"", "Mars/Olympus", "europe/berlin", "Europe", "Europe/", "/usr/share/zoneinfo/UTC",
          "../zoneinfo/UTC", "zone.tab", "right/Europe/Berlin", "UTC\n"}) {
        EXPECT_FALSE(Calendar::inZone(identifier)) << identifier;
    }
}

TEST(Calendar, RefusesADamagedZoneFile)
{
    const std::string whole = contents("/usr/share/zoneinfo/Africa/Cairo");
    const fs::path folder = fs::path{testing::TempDir()} / "damaged-zones";
    fs::create_directories(folder);
    const Environment environment{"TZDIR", folder.string()};
    write(folder / "Zone", whole);
    ASSERT_TRUE(Calendar::inZone("Zone"));
    // Into the two headers, the two blocks and the rule.
    for (std::size_t size = 0; size < whole.size(); size += size < 60 ? 1 : 61) {
        write(folder / "Zone", std::string_view{whole}.substr(0, size));
        ASSERT_FALSE(Calendar::inZone("Zone")) << "cut to " << size;
    }
    for (std::size_t end = 1; end < 40; ++end) {
        write(folder / "Zone", std::string_view{whole}.substr(0, whole.size() - end));
        ASSERT_FALSE(Calendar::inZone("Zone")) << "cut by " << end;
    }
    for (std::size_t byte = 0; byte < whole.size(); byte += 7) {
        std::string changed = whole;
        changed[byte] = static_cast<char>(changed[byte] ^ 0xFF);
        write(folder / "Zone", changed);
        if (const auto calendar = Calendar::inZone("Zone")) {
            std::ignore = calendar->nextDateChange(at(1'800'000'000)); // ends, whatever it says
        }
    }
    fs::remove_all(folder);
}

TEST(Calendar, StaysWithinItsYears)
{
    const Calendar calendar = *Calendar::inZone("Asia/Tokyo");
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(calendar.at(Base::fromSeconds1970(-kInfinity)).year, -9999);
    EXPECT_EQ(calendar.at(Base::fromSeconds1970(kInfinity)).year, 9999);
}

} // namespace KestCore
