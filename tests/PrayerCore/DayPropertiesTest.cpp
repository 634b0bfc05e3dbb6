// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/NightLimits.h"
#include "PrayerCore/PrayerDays.h"
#include "PrayerCore/SunnahTimes.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace PrayerCoreTests
{

using namespace PrayerCore;
using Base::Instant;
using Base::Seconds;

namespace
{

double between(double low, double high)
{
    return low + (high - low) * *rc::gen::inRange(0, 1'000'001) / 1e6;
}

// A place off the date line, where the days of the calendar and of the Sun are the same.
Coordinates placeWithin(double lowest, double highest)
{
    const double side = *rc::gen::element(-1.0, 1.0);
    return {.latitude = side * between(lowest, highest), .longitude = between(-175, 175)};
}

std::chrono::sys_days anyDay()
{
    return std::chrono::sys_days{std::chrono::days{*rc::gen::inRange(-7305, 47'481)}};
}

// Any method that has angles, its minutes and rounding left out when asked for raw times.
enum class Minutes : std::uint8_t { kept, leftOut };

CalculationParameters anyParameters(Minutes minutes)
{
    const int row = *rc::gen::inRange(0, static_cast<int>(CalculationMethod::other));
    auto parameters = parametersOf(static_cast<CalculationMethod>(row));
    if (minutes == Minutes::leftOut) {
        parameters.methodAdjustments = {};
        parameters.rounding = Rounding::none;
    }
    return parameters;
}

} // namespace

RC_GTEST_PROP(Day, HasItsTimesInOrder, ())
{
    const auto times = prayerTimes(placeWithin(0, 48), anyDay(), anyParameters(Minutes::kept));
    RC_ASSERT((times && times->asr));
    RC_ASSERT((times->fajr < times->sunrise && times->sunrise < times->dhuhr));
    RC_ASSERT((times->dhuhr < times->asr && times->asr < times->maghrib));
    RC_ASSERT((times->maghrib < times->isha));
    const auto night = sunnahTimes(*times);
    RC_ASSERT((night && times->maghrib < night->middleOfTheNight));
    RC_ASSERT((night->middleOfTheNight < night->lastThirdOfTheNight));
}

RC_GTEST_PROP(Day, HasTheHanafiAsrAfterTheShafi, ())
{
    const Coordinates place = placeWithin(0, 60);
    const auto day = anyDay();
    auto parameters = anyParameters(Minutes::kept);
    const auto shafi = prayerTimes(place, day, parameters);
    parameters.madhab = Madhab::hanafi;
    const auto hanafi = prayerTimes(place, day, parameters);
    RC_ASSERT((shafi && hanafi && shafi->asr && shafi->asr < hanafi->asr));
    RC_ASSERT((shafi->fajr == hanafi->fajr && shafi->maghrib == hanafi->maghrib));
}

RC_GTEST_PROP(Day, IsShiftedByTheMinutesAndRoundedByTheRule, ())
{
    const Coordinates place = placeWithin(0, 60);
    const auto day = anyDay();
    auto parameters = anyParameters(Minutes::leftOut);
    const auto raw = prayerTimes(place, day, parameters);
    RC_ASSERT(raw.has_value());
    const auto minutes = rc::gen::inRange(-200, 201);
    parameters.adjustments = {*minutes, *minutes, *minutes, *minutes, *minutes, *minutes};
    parameters.methodAdjustments.fajr = *minutes;
    parameters.rounding = *rc::gen::element(Rounding::nearest, Rounding::up);
    const auto moved = prayerTimes(place, day, parameters);
    RC_ASSERT(moved.has_value());
    const auto check = [&](Prayer prayer, std::int64_t added) {
        const auto before =
            *instantOf(*raw, prayer) + Seconds{60.0 * static_cast<double>(added)};
        const auto after = *instantOf(*moved, prayer);
        const double up = (after - before).count();
        RC_ASSERT((std::fmod(Base::seconds1970(after), 60) == 0));
        RC_ASSERT(
            (parameters.rounding == Rounding::up ? up >= 0 && up < 60 : up > -30 && up <= 30));
    };
    const PrayerAdjustments &user = parameters.adjustments;
    check(Prayer::fajr, user.fajr + parameters.methodAdjustments.fajr);
    check(Prayer::sunrise, user.sunrise);
    check(Prayer::dhuhr, user.dhuhr);
    check(Prayer::asr, user.asr);
    check(Prayer::maghrib, user.maghrib);
    check(Prayer::isha, user.isha);
}

RC_GTEST_PROP(Night, GivesFajrAndIshaNoMoreThanTheirPortions, ())
{
    const Coordinates place = placeWithin(30, 65);
    const auto day = anyDay();
    auto parameters = anyParameters(Minutes::leftOut);
    parameters.highLatitudeRule =
        *rc::gen::element(HighLatitudeRule::middleOfTheNight,
                          HighLatitudeRule::seventhOfTheNight, HighLatitudeRule::twilightAngle);
    const auto today = prayerTimes(place, day, parameters);
    const auto tomorrow = prayerTimes(place, day + std::chrono::days{1}, parameters);
    RC_ASSERT((today && tomorrow));
    const Instant sunset =
        parameters.maghribAngle
            ? prayerTimes(place, day, parametersOf(CalculationMethod::other))->maghrib
            : today->maghrib;
    const Seconds slack{parameters.maghribAngle ? 31.0 : 1.0}; // whole minutes, whole seconds
    const Seconds night = tomorrow->sunrise - sunset;
    NightPortions most = nightPortions(parameters, place.latitude);
    Seconds morning = night * most.fajr;
    Seconds evening = night * most.isha;
    if (parameters.method == CalculationMethod::moonsightingCommittee) {
        morning = seasonalMorning(day, place.latitude);
        evening = seasonalEvening(day, place.latitude, parameters.shafaq);
    }
    RC_ASSERT((today->fajr >= today->sunrise - morning - slack));
    if (parameters.ishaInterval > 0) {
        RC_ASSERT((today->isha - today->maghrib == std::chrono::minutes{90}));
    } else {
        RC_ASSERT((today->isha <= sunset + evening + slack));
    }
}

RC_GTEST_PROP(Night, IsSharedInSeventhsByTheCommitteeFromFiftyFiveDegreesOn, ())
{
    const Coordinates place{.latitude = between(55, 65), .longitude = between(-175, 175)};
    const auto day = anyDay();
    auto parameters = parametersOf(CalculationMethod::moonsightingCommittee);
    parameters.methodAdjustments = {};
    parameters.rounding = Rounding::none;
    parameters.fajrAngle = *rc::gen::inRange(5, 20); // changes nothing
    const auto today = prayerTimes(place, day, parameters);
    const auto tomorrow = prayerTimes(place, day + std::chrono::days{1}, parameters);
    RC_ASSERT((today && tomorrow));
    const Seconds seventh = (tomorrow->sunrise - today->maghrib) / 7;
    const Seconds morning = std::min(seventh, seasonalMorning(day, place.latitude));
    const Seconds evening =
        std::min(seventh, seasonalEvening(day, place.latitude, parameters.shafaq));
    RC_ASSERT((std::abs((today->sunrise - morning - today->fajr).count()) <= 1));
    RC_ASSERT((std::abs((today->maghrib + evening - today->isha).count()) <= 1));
}

RC_GTEST_PROP(Days, AreTheSameOneByOneAndInARow, ())
{
    const Coordinates place{.latitude = between(-90, 90), .longitude = between(-180, 180)};
    const auto first = anyDay();
    const auto parameters = anyParameters(Minutes::kept);
    auto days = PrayerDays::from(place, first, parameters);
    RC_ASSERT(days.has_value());
    for (int i = 0; i < 40; ++i) {
        RC_ASSERT(
            (days->next() == prayerTimes(place, first + std::chrono::days{i}, parameters)));
    }
}

} // namespace PrayerCoreTests
