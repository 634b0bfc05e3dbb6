// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Instant.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace BaseTests
{

using namespace Base;

TEST(Instant, ConvertsBetweenThePersistedForms)
{
    EXPECT_EQ(seconds1970(fromSeconds2001(0)), 978'307'200.0);
    EXPECT_EQ(seconds2001(fromSeconds1970(0)), -978'307'200.0);
    EXPECT_EQ(milliseconds1970(fromSeconds2001(1.5)), 978'307'201'500.0);
    EXPECT_EQ(seconds1970(fromMilliseconds1970(1500)), 1.5);
}

TEST(Instant, ReadsIso8601)
{
    struct Case {
        std::string_view text;
        double seconds;
    };
    for (const auto &[text, seconds] : {
             Case{"1970-01-01T00:00:00Z", 0},
             Case{"2001-01-01T00:00:00Z", 978'307'200},
             Case{"2026-11-21T08:30:00Z", 1'795'249'800},
             Case{"2026-11-21T08:30:00+03:00", 1'795'239'000},
             Case{"2026-11-21T08:30:00-05:45", 1'795'270'500},
             Case{"2026-11-21T08:30:00.5Z", 1'795'249'800.5},
             Case{"2024-02-29T23:59:59Z", 1'709'251'199},
             Case{"2000-02-29T00:00:00Z", 951'782'400},
             Case{"1969-12-31T23:59:59.25Z", -0.75},
             Case{"0001-01-01T00:00:00Z", -62'135'596'800},
             Case{"9999-12-31T23:59:59+00:00", 253'402'300'799},
         }) {
        const auto instant = fromIso8601(text);
        ASSERT_TRUE(instant) << text;
        EXPECT_DOUBLE_EQ(seconds1970(*instant), seconds) << text;
    }
}

TEST(Instant, RefusesOtherTexts)
{
    for (const std::string_view bad : {"",
                                       "now",
                                       "2026-11-21",
                                       "2026-11-21T08:30:00",
                                       "2026-11-21 08:30:00Z",
                                       "2026-11-21t08:30:00Z",
                                       "2026-11-21T08:30:00z",
                                       "2026-11-21T08:30Z",
                                       "26-11-21T08:30:00Z",
                                       "2026-1-21T08:30:00Z",
                                       "2026-00-21T08:30:00Z",
                                       "2026-13-21T08:30:00Z",
                                       "2026-11-00T08:30:00Z",
                                       "2026-11-31T08:30:00Z",
                                       "2026-02-29T08:30:00Z",
                                       "1900-02-29T08:30:00Z",
                                       "2026-11-21T24:00:00Z",
                                       "2026-11-21T08:60:00Z",
                                       "2026-11-21T08:30:60Z",
                                       "2026-11-21T08:30:00.Z",
                                       "2026-11-21T08:30:00,5Z",
                                       "2026-11-21T08:30:00+0300",
                                       "2026-11-21T08:30:00+3:00",
                                       "2026-11-21T08:30:00+24:00",
                                       "2026-11-21T08:30:00+03:60",
                                       "2026-11-21T08:30:00-03:99",
                                       "2026-11-21T08:30:00Z ",
                                       " 2026-11-21T08:30:00Z",
                                       "2026-11-21T08:30:00ZZ",
                                       "2026-11-21T08:30:00Z+03:00",
                                       "2026-11-2/T08:30:00Z",
                                       "2026-11-21T08:3::00Z",
                                       "-026-11-21T08:30:00Z",
                                       "2026-11-21T08:30:00\u221203:00"}) {
        const auto instant = fromIso8601(bad);
        EXPECT_FALSE(instant) << bad << " read as " << seconds1970(*instant);
    }
}

TEST(Instant, WritesIso8601)
{
    struct Case {
        double seconds;
        std::string_view text;
    };
    for (const auto &[seconds, text] : {
             Case{0, "1970-01-01T00:00:00Z"},
             Case{1'795'249'800, "2026-11-21T08:30:00Z"},
             Case{1'795'249'800.0625, "2026-11-21T08:30:00.063Z"},
             Case{1'795'249'800.005, "2026-11-21T08:30:00.005Z"},
             Case{0.9996, "1970-01-01T00:00:01Z"},
             Case{-0.25, "1969-12-31T23:59:59.750Z"},
             Case{-62'135'596'800, "0001-01-01T00:00:00Z"},
             Case{253'402'300'799.999, "9999-12-31T23:59:59.999Z"},
         }) {
        EXPECT_EQ(toIso8601(fromSeconds1970(seconds)).value(), text);
    }
    for (const double outside :
         {-62'135'596'800.001, 253'402'300'799.9996, 1e300, -1e300,
          std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(toIso8601(fromSeconds1970(outside))) << outside;
    }
}

RC_GTEST_PROP(Instant, KeepsItsMillisecondsAsText, ())
{
    const auto ms = *rc::gen::inRange<std::int64_t>(-62'135'596'800'000, 253'402'300'800'000);
    const auto text = toIso8601(fromMilliseconds1970(static_cast<double>(ms))).value();
    RC_ASSERT(std::llround(milliseconds1970(fromIso8601(text).value())) == ms);
}

} // namespace BaseTests
