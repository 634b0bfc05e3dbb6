// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/InsightPeriod.h"

#include "KestCore/Clients/Money.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace KestCore
{

namespace
{

using enum InsightPeriod;

Base::Instant at(std::string_view iso) { return *Base::fromIso8601(iso); }

} // namespace

TEST(InsightPeriod, BeginsWithALocalDayAndIsCutByTheClock)
{
    struct Case {
        const char *zone;
        const char *now;
        InsightPeriod period;
        const char *start;
        std::size_t buckets;
    };
    for (const auto &[zone, now, period, start, buckets] : {
             Case{"UTC", "2026-11-21T18:00:00Z", today, "2026-11-21T00:00:00Z", 19},
             Case{"UTC", "2026-11-21T18:00:00Z", last7Days, "2026-11-15T00:00:00Z", 7},
             Case{"UTC", "2026-11-21T18:00:00Z", last30Days, "2026-10-23T00:00:00Z", 30},
             Case{"UTC", "2026-11-21T18:00:00Z", last90Days, "2026-08-24T00:00:00Z", 90},
             Case{"UTC", "2026-11-01T00:00:00Z", monthToDate, "2026-11-01T00:00:00Z", 1},
             Case{"UTC", "2024-12-31T23:59:59Z", yearToDate, "2024-01-01T00:00:00Z", 366},
             // The year ends later here.
             Case{"America/New_York", "2027-01-01T04:59:59Z", yearToDate,
                  "2026-01-01T05:00:00Z", 365},
             // The clock goes forward at two, and the day has 23 hours.
             Case{"Europe/Berlin", "2026-03-29T20:30:00Z", today, "2026-03-28T23:00:00Z", 22},
             Case{"Europe/Berlin", "2026-03-29T21:59:59Z", today, "2026-03-28T23:00:00Z", 23},
             Case{"Europe/Berlin", "2026-03-30T12:00:00Z", last7Days, "2026-03-23T23:00:00Z",
                  7},
             Case{"Europe/Berlin", "2026-03-29T20:30:00Z", monthToDate, "2026-02-28T23:00:00Z",
                  29},
             // It goes back at three, and the day has 25.
             Case{"Europe/Berlin", "2026-10-25T22:59:59Z", today, "2026-10-24T22:00:00Z", 25},
             // Midnight is skipped: the day begins at one.
             Case{"Africa/Cairo", "2026-04-24T10:00:00Z", today, "2026-04-23T22:00:00Z", 13},
             // A whole day was skipped, the 30th.
             Case{"Pacific/Apia", "2011-12-31T00:00:00Z", last7Days, "2011-12-25T10:00:00Z", 6},
         }) {
        SCOPED_TRACE(std::string{zone} + " " + now + " " + std::string{Base::textOf(period)});
        const Calendar calendar = Calendar::inZone(zone).value();
        const InsightSpan span = spanOf(period, at(now), calendar);
        EXPECT_EQ(Base::toIso8601(span.start).value(), start);
        EXPECT_EQ(span.end, at(now));
        const auto cut = bucketsOf(span, calendar);
        EXPECT_EQ(cut.size(), buckets);
        EXPECT_EQ(cut.front(), span.start);
        EXPECT_LE(cut.back(), span.end);
    }
    const Calendar utc = Calendar::inZone("UTC").value();
    EXPECT_EQ(spanOf(today, at("2026-11-21T18:00:00.750Z"), utc).end,
              at("2026-11-21T18:00:00Z"));
}

TEST(InsightPeriod, ReadsTheInstantsThatProvidersWrite)
{
    const Calendar berlin = Calendar::inZone("Europe/Berlin").value();
    struct Case {
        const char *text;
        const char *instant;
    };
    for (const auto &[text, instant] : {
             Case{"2026-03-29T01:00:00Z", "2026-03-29T01:00:00Z"},
             Case{"2026-03-29T01:00:00.000+01:00", "2026-03-29T00:00:00Z"},
             Case{"2026-03-29", "2026-03-28T23:00:00Z"},
             Case{"2026-03-30", "2026-03-29T22:00:00Z"},
             Case{"2026-03-29T01:59:59", "2026-03-29T00:59:59Z"},
             Case{"2026-03-29 03:00:00", "2026-03-29T01:00:00Z"},
             Case{"1969-12-31", "1969-12-30T23:00:00Z"},
         }) {
        SCOPED_TRACE(text);
        const auto read = instantFrom(text, berlin);
        ASSERT_TRUE(read);
        EXPECT_EQ(Base::toIso8601(*read).value(), instant);
    }
    for (const char *text : {"", "yesterday", "2026-13-01", "2026-03-29T", "2026-3-29"}) {
        EXPECT_FALSE(instantFrom(text, berlin)) << text;
    }
}

TEST(Money, ReadsExactlyInTheDecimalsOfItsCurrency)
{
    struct Case {
        std::int64_t smallest;
        const char *currency;
        const char *text;
    };
    for (const auto &[smallest, currency, text] : {
             Case{0, "usd", "0.00 USD"},
             Case{-5, "eur", "-0.05 EUR"},
             Case{-105, "eur", "-1.05 EUR"},
             Case{123'456'789, "usd", "1,234,567.89 USD"},
             Case{100'000, "jpy", "100,000 JPY"},
             Case{-999, "krw", "-999 KRW"},
             Case{1'234'567, "kwd", "1,234.567 KWD"},
             Case{1'005, "bhd", "1.005 BHD"},
             Case{500, "ugx", "5.00 UGX"}, // in hundredths, though the shilling has none
             Case{kMostMoney, "usd", "2,814,749,767,106.56 USD"},
             Case{1, "€", "0.01 €"},
             Case{std::numeric_limits<std::int64_t>::min(), "usd",
                  "-92,233,720,368,547,758.08 USD"},
         }) {
        EXPECT_EQ(moneyText(smallest, currency), text);
        if (smallest >= -kMostMoney) { // and nothing is lost on the way through a double
            EXPECT_EQ(moneyTextOfMain(mainUnits(smallest, currency), currency), text);
        }
    }
    for (const char *currency : {"usd", "jpy", "kwd"}) {
        for (std::int64_t amount = 3 * kMostMoney; amount > 3 * kMostMoney - 1000; --amount) {
            ASSERT_EQ(moneyTextOfMain(mainUnits(amount, currency), currency),
                      moneyText(amount, currency));
        }
    }
}

} // namespace KestCore
