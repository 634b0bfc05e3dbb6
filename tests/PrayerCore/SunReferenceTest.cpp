// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/PrayerTimes.h"
#include "PrayerCore/SolarTime.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

// What an independent astronomy library says of the Sun, beside what this module says. The
// table's rises and sets are those of the Sun's centre at -50/60 degrees, as here.
namespace PrayerCoreTests
{

using namespace PrayerCore;

namespace
{

struct Row {
    std::string text{};
    std::chrono::year_month_day date{};
    Coordinates place{};
    double transit{}; // seconds since 1970 UTC, as all that follow
    double sunrise{};
    double sunset{};
    double dawn{}; // 0 above 45 degrees of latitude, as all that follow
    double dusk{};
    double shafiAsr{};
    double hanafiAsr{};

    bool hasTwilight() const { return dawn != 0; }
};

std::vector<Row> reference()
{
    std::ifstream file{KEST_SUN_REFERENCE};
    std::string line;
    std::getline(file, line); // where the table comes from
    std::getline(file, line); // the names of the columns
    std::vector<Row> rows;
    while (std::getline(file, line)) {
        std::istringstream cells{line};
        Row row{.text = line};
        int year = 0;
        unsigned month = 0;
        unsigned day = 0;
        char separator = 0;
        cells >> year >> separator >> month >> separator >> day;
        row.date = std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day};
        for (double *value :
             {&row.place.latitude, &row.place.longitude, &row.transit, &row.sunrise,
              &row.sunset, &row.dawn, &row.dusk, &row.shafiAsr, &row.hanafiAsr}) {
            cells >> separator >> *value;
        }
        rows.push_back(row);
    }
    return rows;
}

double sinceMidnight(const Row &row, double seconds1970)
{
    return seconds1970 -
           Base::seconds1970(std::chrono::sys_seconds{std::chrono::sys_days{row.date}});
}

} // namespace

// A minute would do for a timetable; a fault in a small term shows only below that.
constexpr double kSunSeconds = 10;
constexpr double kTwilightSeconds = 15;

// The altitude for asr is that of the shadow by the declination of 0h, up to a day's change
// from that of the afternoon.
constexpr double kShadowSeconds = 90;

TEST(SunReference, TransitSunriseAndSunsetAgree)
{
    const std::vector<Row> rows = reference();
    ASSERT_GE(rows.size(), 2000U);
    for (const Row &row : rows) {
        SCOPED_TRACE(row.text);
        const auto sun = SolarTime::make(row.date, row.place);
        ASSERT_TRUE(sun);
        EXPECT_NEAR(sun->transit() * 3600, sinceMidnight(row, row.transit), kSunSeconds);
        EXPECT_NEAR(sun->sunrise() * 3600, sinceMidnight(row, row.sunrise), kSunSeconds);
        EXPECT_NEAR(sun->sunset() * 3600, sinceMidnight(row, row.sunset), kSunSeconds);
    }
}

TEST(SunReference, TwilightAndShadowsAgree)
{
    int count = 0;
    for (const Row &row : reference()) {
        if (!row.hasTwilight()) {
            continue;
        }
        ++count;
        SCOPED_TRACE(row.text);
        const auto sun = SolarTime::make(row.date, row.place);
        ASSERT_TRUE(sun);
        using enum SolarTime::Side;
        EXPECT_NEAR(sun->timeForAltitude({-18}, beforeTransit) * 3600,
                    sinceMidnight(row, row.dawn), kTwilightSeconds);
        EXPECT_NEAR(sun->timeForAltitude({-18}, afterTransit) * 3600,
                    sinceMidnight(row, row.dusk), kTwilightSeconds);
        EXPECT_NEAR(sun->timeForShadowLength(1) * 3600, sinceMidnight(row, row.shafiAsr),
                    kShadowSeconds);
        EXPECT_NEAR(sun->timeForShadowLength(2) * 3600, sinceMidnight(row, row.hanafiAsr),
                    kShadowSeconds);
    }
    EXPECT_GE(count, 1000);
}

// Away from the date line, where the night of a day is beyond doubt.
TEST(SunReference, PrayerTimesFollowTheSun)
{
    auto parameters = parametersOf(CalculationMethod::karachi); // 18 degrees, twice
    parameters.rounding = Rounding::none;
    parameters.methodAdjustments = {};
    for (const Row &row : reference()) {
        if (!row.hasTwilight() || std::abs(row.place.longitude) > 175) {
            continue;
        }
        SCOPED_TRACE(row.text);
        const auto times = prayerTimes(row.place, row.date, parameters);
        ASSERT_TRUE(times && times->asr);
        const auto expectNear = [](Base::Instant time, double seconds,
                                   double slack = kTwilightSeconds) {
            EXPECT_NEAR(Base::seconds1970(time), seconds, slack);
        };
        expectNear(times->fajr, row.dawn);
        expectNear(times->sunrise, row.sunrise);
        expectNear(times->dhuhr, row.transit);
        expectNear(*times->asr, row.shafiAsr, kShadowSeconds);
        expectNear(times->maghrib, row.sunset);
        expectNear(times->isha, row.dusk);
    }
}

} // namespace PrayerCoreTests
