// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/DateUtilities.h"
#include "PrayerCore/JulianDate.h"
#include "PrayerCore/Qibla.h"
#include "PrayerCore/SolarTime.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <limits>

namespace PrayerCoreTests
{

using namespace PrayerCore;
using namespace std::chrono_literals;

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Degrees between a lowest and a highest, in thousandths.
rc::Gen<double> degrees(int low, int high)
{
    return rc::gen::map(rc::gen::inRange(low * 1000, high * 1000 + 1),
                        [](int thousandths) { return thousandths / 1000.0; });
}

} // namespace

// The examples of Meeus, Astronomical Algorithms, chapter 7.
TEST(JulianDate, IsThatOfTheBook)
{
    struct Case {
        CalendarComponents components;
        double julianDay;
    };
    for (const auto &[components, julianDay] : {
             Case{{.year = 2000, .hour = 12}, 2451545.0},
             Case{{.year = 1999}, 2451179.5},
             Case{{.year = 1987, .month = 1, .day = 27}, 2446822.5},
             Case{{.year = 1987, .month = 6, .day = 19, .hour = 12}, 2446966.0},
             Case{{.year = 1988, .month = 6, .day = 19, .hour = 12}, 2447332.0},
             Case{{.year = 1900}, 2415020.5},
             Case{{.year = 1600}, 2305447.5},
             Case{{.year = 1600, .month = 12, .day = 31}, 2305812.5},
             Case{{.year = 1957, .month = 10, .day = 4, .hour = 19, .minute = 26},
                  2436116.309722},
         }) {
        EXPECT_NEAR(julianDate(components), julianDay, 1e-6);
    }
}

TEST(JulianDate, GrowsByOneFromDayToDay)
{
    const double first = julianDate(componentsOf(kFirstDay));
    for (auto day = kFirstDay; day <= kLastDay; day += std::chrono::days{1}) {
        const auto count = static_cast<double>((day - kFirstDay).count());
        ASSERT_EQ(julianDate(componentsOf(day)), first + count);
    }
}

TEST(JulianDateDeathTest, EndsTheProgramWhereItsWholeNumbersDo)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    EXPECT_DEATH(julianDate({.year = kMost}), "PrayerCore/JulianDate");
    EXPECT_DEATH(julianDate({.month = kMost}), "PrayerCore/JulianDate");
}

// Examples 25.a, 12.a and 3.a of the same book.
TEST(SolarCoordinates, AreThoseOfTheBook)
{
    const auto sun = solarCoordinates(julianDate({.year = 1992, .month = 10, .day = 13}));
    EXPECT_NEAR(sun.rightAscension.degrees, 198.38083, 2e-5);
    EXPECT_NEAR(sun.declination.degrees, -7.78507, 2e-5);
    const auto earth = solarCoordinates(julianDate({.year = 1987, .month = 4, .day = 10}));
    EXPECT_NEAR(earth.apparentSiderealTime.degrees, 197.692229, 2e-5);
    const ThreePoints mars{0.877366, 0.877366 - 0.884226, 0.870531 - 0.877366};
    EXPECT_NEAR(mars.at(4.35 / 24), 0.876125, 1e-6);
}

TEST(Angle, UnwindsAndTakesTheShortWayRound)
{
    struct Case {
        double degrees;
        double unwound;
        double closest;
    };
    for (const auto &[degrees, unwound, closest] : {
             Case{-45, 315, -45},
             Case{361, 1, 1},
             Case{720, 0, 0},
             Case{360, 0, 0},
             Case{259, 259, -101},
             Case{180, 180, 180},
             Case{-180, 180, -180},
             Case{181, 181, -179},
             Case{-1e-20, 0, -1e-20},
         }) {
        EXPECT_EQ(Angle{degrees}.unwound().degrees, unwound) << degrees;
        EXPECT_EQ(closestAngle({degrees}).degrees, closest) << degrees;
    }
}

TEST(TimeComponents, SplitHoursAndRollIntoTheNeighbouringDays)
{
    const std::chrono::sys_days day = 2026y / 11 / 21;
    struct Case {
        double hours;
        std::chrono::sys_seconds moment;
    };
    for (const auto &[hours, moment] : {
             Case{0, day},
             Case{12.5, day + 12h + 30min},
             Case{23.9999, day + 23h + 59min + 59s},
             Case{-0.25, day - 15min},
             Case{-24, day - 24h},
             Case{25.75, day + 25h + 45min},
             Case{47.5, day + 47h + 30min},
             Case{6.0125, day + 6h + 45s},
         }) {
        ASSERT_TRUE(timeComponents(hours)) << hours;
        EXPECT_EQ(at(day, *timeComponents(hours)), moment) << hours;
    }
    for (const double hours : {kNaN, kInfinity, -kInfinity, 48.0, -24.001, 1e300}) {
        EXPECT_FALSE(timeComponents(hours)) << hours;
    }
}

RC_GTEST_PROP(TimeComponents, LoseLessThanASecond, ())
{
    const double hours = *rc::gen::map(rc::gen::inRange(-86'400'000, 172'800'000),
                                       [](int ms) { return ms / 3'600'000.0; });
    const auto components = timeComponents(hours);
    RC_ASSERT(components.has_value());
    const double seconds = Base::seconds1970(at(std::chrono::sys_days{}, *components));
    RC_ASSERT(seconds <= hours * 3600 + 1e-6 && seconds > hours * 3600 - 1 - 1e-6);
}

TEST(RoundToMinute, FollowsTheRule)
{
    const auto noon = std::chrono::sys_days{2026y / 11 / 21} + 12h;
    const auto past = std::chrono::sys_days{1955y / 3 / 1}; // before 1970
    struct Case {
        std::chrono::sys_seconds moment;
        Rounding rounding;
        std::chrono::sys_seconds rounded;
    };
    using enum Rounding;
    for (const auto &[moment, rounding, rounded] : {
             Case{noon + 34min + 30s, nearest, noon + 35min},
             Case{noon + 34min + 29s, nearest, noon + 34min},
             Case{noon + 34min + 1s, up, noon + 35min},
             Case{noon + 34min, up, noon + 34min},
             Case{noon + 34min + 59s, none, noon + 34min + 59s},
             Case{noon + 11h + 59min + 31s, nearest, noon + 12h},
             Case{past - 30s, nearest, past},
             Case{past - 31s, nearest, past - 1min},
         }) {
        EXPECT_EQ(roundToMinute(moment, rounding), rounded);
    }
}

TEST(DaysFromSolstice, CountsFromTheWinterOfTheHemisphere)
{
    struct Case {
        int dayOfYear;
        int year;
        double latitude;
        int days;
    };
    for (const auto &[day, year, latitude, days] : {
             Case{360, 2023, 40, 5},
             Case{1, 2023, -30, 194},
             Case{1, 2024, -30, 194},
             Case{355, 2023, 40, 0},
             Case{354, 2023, 40, 364},
             Case{356, 2024, 0, 0},
             Case{355, 2024, 0, 365},
             Case{172, 2023, -1, 0},
             Case{171, 2023, -1, 364},
             Case{173, 2024, -1, 0},
             Case{366, 2024, 1, 10},
             Case{365, 1900, 1, 10},
             Case{366, 2000, 1, 10},
         }) {
        EXPECT_EQ(daysFromSolstice(day, year, latitude), days) << day << ' ' << year;
    }
    EXPECT_EQ(dayOfYear(2024y / 12 / 31), 366);
    EXPECT_EQ(dayOfYear(1900y / 3 / 1), 60);
}

TEST(SolarTime, HasNoRiseAndSetInPolarSummerAndWinter)
{
    for (const auto date : {2026y / 6 / 21, 2026y / 12 / 21}) {
        for (const double latitude : {-75.0, 75.0, -90.0, 90.0}) {
            const auto sun = SolarTime::make(date, {.latitude = latitude, .longitude = 20});
            ASSERT_TRUE(sun);
            EXPECT_TRUE(std::isnan(sun->sunrise()) && std::isnan(sun->sunset())) << latitude;
            EXPECT_NEAR(sun->transit(), 12 - 20 / 15.0, 0.3) << latitude;
        }
    }
}

TEST(SolarTime, RefusesWhatIsNoPlaceAndNoDay)
{
    const Coordinates mecca = kKaaba;
    for (const Coordinates &place :
         {Coordinates{kNaN, 0}, Coordinates{0, kNaN}, Coordinates{90.1, 0},
          Coordinates{0, -180.5}, Coordinates{kInfinity, 0}, Coordinates{0, kInfinity}}) {
        EXPECT_FALSE(SolarTime::make(2026y / 1 / 1, place));
        EXPECT_FALSE(qibla(place));
    }
    for (const auto date : {2026y / 2 / 30, 0y / 1 / 1, 10000y / 1 / 1, -5y / 3 / 1}) {
        EXPECT_FALSE(SolarTime::make(date, mecca));
    }
    EXPECT_TRUE(SolarTime::make(9999y / 12 / 31, {-90, -180}));
}

TEST(Qibla, IsNorthOrSouthOnTheMeridianOfTheKaaba)
{
    struct Case {
        Coordinates place;
        double direction;
    };
    const double opposite = kKaaba.longitude - 180;
    for (const auto &[place, direction] : {
             Case{{-30, kKaaba.longitude}, 0},
             Case{{50, kKaaba.longitude}, 180},
             Case{{50, opposite}, 0},
             Case{{-60, opposite}, 180},
         }) {
        const double given = qibla(place)->direction.degrees;
        EXPECT_TRUE(given >= 0 && given < 360);
        EXPECT_NEAR(closestAngle(Angle{given - direction}).degrees, 0, 1e-9);
    }
}

// The direction is where the Kaaba lies among north and east, taken as vectors in space.
RC_GTEST_PROP(Qibla, PointsAtTheKaabaAndTurnsWithoutJumps, ())
{
    using Vector = std::array<double, 3>;
    const auto dot = [](const Vector &a, const Vector &b) {
        return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    };
    const auto outward = [](const Coordinates &place) {
        const Angle latitude{place.latitude};
        const Angle longitude{place.longitude};
        return Vector{cosine(latitude) * cosine(longitude), cosine(latitude) * sine(longitude),
                      sine(latitude)};
    };
    const Coordinates place{*degrees(-88, 88), *degrees(-179, 179)};
    const Vector kaaba = outward(kKaaba);
    const Vector here = outward(place);
    RC_PRE(std::abs(dot(here, kaaba)) < std::cos(0.02)); // over a degree from both points
    const Vector north = outward({place.latitude + 90, place.longitude});
    const Vector east = outward({0, place.longitude + 90});

    const Angle direction = qibla(place)->direction;
    const Angle seen = Angle::fromRadians(std::atan2(dot(kaaba, east), dot(kaaba, north)));
    RC_ASSERT(std::abs(closestAngle(direction - seen).degrees) < 1e-6);

    const Coordinates beside{place.latitude + 0.001, place.longitude + 0.001};
    const Angle turned = qibla(beside)->direction - direction;
    RC_ASSERT(std::abs(closestAngle(turned).degrees) < 0.2);
}

} // namespace PrayerCoreTests
