// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/PrayerDays.h"
#include "PrayerCore/SunnahTimes.h"

#include <gmock/gmock.h>

#include <array>
#include <limits>

namespace PrayerCoreTests
{

using namespace PrayerCore;
using namespace std::chrono_literals;
using Base::fromSeconds1970;

namespace
{

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr Coordinates kLondon{.latitude = 51.5, .longitude = -0.12};

PrayerTimes timesAt(std::array<double, 6> seconds)
{
    PrayerTimes times;
    times.fajr = fromSeconds1970(seconds[0]);
    times.sunrise = fromSeconds1970(seconds[1]);
    times.dhuhr = fromSeconds1970(seconds[2]);
    times.asr = fromSeconds1970(seconds[3]);
    times.maghrib = fromSeconds1970(seconds[4]);
    times.isha = fromSeconds1970(seconds[5]);
    return times;
}

} // namespace

TEST(PrayerInProgress, ChangesAtTheVeryInstant)
{
    using enum Prayer;
    PrayerTimes times = timesAt({10, 20, 30, 40, 50, 60});
    struct Case {
        double seconds;
        std::optional<Prayer> inProgress, upcoming;
    };
    for (const auto &[seconds, inProgress, next] :
         {Case{9, {}, fajr}, Case{10, fajr, sunrise}, Case{20.5, sunrise, dhuhr},
          Case{39.9, dhuhr, asr}, Case{40, asr, maghrib}, Case{50, maghrib, isha},
          Case{59.9, maghrib, isha}, Case{60, isha, {}}, Case{1e9, isha, {}},
          Case{kNaN, {}, {}}}) {
        EXPECT_EQ(prayerInProgress(times, fromSeconds1970(seconds)), inProgress) << seconds;
        EXPECT_EQ(upcomingPrayer(times, fromSeconds1970(seconds)), next) << seconds;
    }
    times.asr.reset();
    EXPECT_EQ(prayerInProgress(times, fromSeconds1970(45)), dhuhr);
    EXPECT_EQ(upcomingPrayer(times, fromSeconds1970(45)), maghrib);
    EXPECT_FALSE(instantOf(times, asr));
}

TEST(PrayerTimes, AreRefusedWithoutAPlaceADayOrAngles)
{
    const auto usual = parametersOf(CalculationMethod::karachi);
    EXPECT_TRUE(prayerTimes(kLondon, 9999y / 12 / 31, usual));
    EXPECT_FALSE(prayerTimes({kNaN, 0}, 2026y / 1 / 1, usual));
    EXPECT_FALSE(prayerTimes({91, 0}, 2026y / 1 / 1, usual));
    EXPECT_FALSE(prayerTimes(kLondon, 2026y / 2 / 29, usual));
    EXPECT_FALSE(prayerTimes(kLondon, 10000y / 1 / 1, usual));
    for (const double angle : {kNaN, std::numeric_limits<double>::infinity(), 90.5, -91.0}) {
        std::array<CalculationParameters, 3> wrong{usual, usual, usual};
        wrong[0].fajrAngle = angle;
        wrong[1].ishaAngle = angle;
        wrong[2].maghribAngle = angle;
        for (const CalculationParameters &parameters : wrong) {
            EXPECT_FALSE(prayerTimes(kLondon, 2026y / 1 / 1, parameters)) << angle;
        }
    }
    auto last = PrayerDays::from(kLondon, 9999y / 12 / 31, usual);
    ASSERT_TRUE(last && last->next());
    EXPECT_FALSE(last->next());
    EXPECT_FALSE(sunnahTimes(*prayerTimes(kLondon, 9999y / 12 / 31, usual)));
}

TEST(PrayerTimes, AreMissingWhileTheSunStaysUpOrDown)
{
    auto days = PrayerDays::from({.latitude = 69.65, .longitude = 18.96}, 2026y / 1 / 1,
                                 parametersOf(CalculationMethod::muslimWorldLeague));
    ASSERT_TRUE(days);
    int changes = 0;
    bool had = false;
    for (int day = 0; day < 365; ++day) {
        const bool has = days->next().has_value();
        changes += has != had ? 1 : 0;
        had = has;
    }
    EXPECT_EQ(changes, 4); // the Sun comes back, stays up, sets again and goes
}

TEST(PrayerTimesDeathTest, EndOverMinutesThatCannotBeCounted)
{
    constexpr std::int64_t kMost = std::numeric_limits<std::int64_t>::max();
    auto parameters = parametersOf(CalculationMethod::turkey);
    parameters.adjustments.dhuhr = kMost; // its sum with the method's own
    EXPECT_DEATH(prayerTimes(kLondon, 2026y / 1 / 1, parameters), "too many minutes");
    parameters.adjustments.dhuhr = -kMost / 2; // its product
    EXPECT_DEATH(prayerTimes(kLondon, 2026y / 1 / 1, parameters), "too many minutes");
    parameters.adjustments.dhuhr = kMost / 60 - 9; // the instant
    EXPECT_DEATH(prayerTimes(kLondon, 2026y / 1 / 1, parameters), "too many minutes");
    parameters.adjustments.dhuhr = 0;
    parameters.ishaInterval = kMost;
    EXPECT_DEATH(prayerTimes(kLondon, 2026y / 1 / 1, parameters), "too many minutes");
}

TEST(Tehran, MovesMaghribOnlyWhereItFallsBeforeIsha)
{
    const auto date = 2026y / 3 / 20;
    auto parameters = parametersOf(CalculationMethod::tehran);
    const Coordinates tehran{.latitude = 35.7, .longitude = 51.4};
    const auto moved = prayerTimes(tehran, date, parameters);
    parameters.maghribAngle = 15; // beyond the 14 degrees of isha
    const auto kept = prayerTimes(tehran, date, parameters);
    parameters.maghribAngle = 0.5; // above the altitude of sunset
    const auto early = prayerTimes(tehran, date, parameters);
    parameters.maghribAngle.reset();
    const auto sunset = prayerTimes(tehran, date, parameters);
    ASSERT_TRUE(moved && kept && early && sunset);
    EXPECT_EQ(kept->maghrib, sunset->maghrib);
    EXPECT_EQ(early->maghrib, sunset->maghrib);
    // At an equinox the Sun sinks by 15 degrees times the cosine of the latitude in an hour.
    EXPECT_NEAR((moved->maghrib - sunset->maghrib).count() / 60,
                (4.5 - 50.0 / 60) / (15 * 0.8121) * 60, 1.5);
}

TEST(SunnahTimes, DivideTheNightAndRoundToTheNearestMinute)
{
    PrayerTimes today = timesAt({0, 0, 0, 0, 36'000, 0});
    struct Case {
        double nextFajr, middle, lastThird;
    };
    for (const auto &[nextFajr, middle, lastThird] :
         {Case{36'000 + 36'000, 54'000, 60'000},
          Case{36'000 + 36'060, 54'060, 60'060},    // 30 s up, 40 s up
          Case{36'000 + 36'030, 54'000, 60'000},    // 15 s and 20 s down
          Case{36'000 + 36'059, 54'000, 60'060}}) { // 29.5 s down, 39.3 s up
        PrayerTimes tomorrow = timesAt({nextFajr, 0, 0, 0, 0, 0});
        const auto night = sunnahTimes(today, tomorrow);
        ASSERT_TRUE(night);
        EXPECT_EQ(night->middleOfTheNight, fromSeconds1970(middle)) << nextFajr;
        EXPECT_EQ(night->lastThirdOfTheNight, fromSeconds1970(lastThird)) << nextFajr;
    }
    today.maghrib = fromSeconds1970(kNaN);
    EXPECT_FALSE(sunnahTimes(today, timesAt({1, 0, 0, 0, 0, 0})));
}

} // namespace PrayerCoreTests
