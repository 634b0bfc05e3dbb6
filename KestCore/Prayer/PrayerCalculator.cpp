// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerCalculator.h"

#include "Base/Fault.h"
#include "PrayerCore/PrayerDays.h"

#include <unicode/calendar.h>
#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <memory>

namespace KestCore
{

namespace
{

namespace chrono = std::chrono;

using PrayerCore::Coordinates;
using PrayerCore::Prayer;
using PrayerCore::PrayerDays;
using PrayerCore::PrayerTimes;

constexpr double kSecondsPerDegree = 240; // the Earth turns a degree in four minutes

// Without the user's adjustments, which may put times into any order.
PrayerCore::CalculationParameters asTheMethodSays(PrayerCore::CalculationParameters parameters)
{
    parameters.adjustments = {};
    return parameters;
}

bool isInOrder(const PrayerTimes &times)
{
    return times.fajr <= times.sunrise && times.sunrise < times.dhuhr &&
           times.dhuhr < times.maghrib && times.maghrib <= times.isha;
}

// At the edge of the polar night the shadow's formula can give an hour that is no afternoon.
bool hasAsrOfItsAfternoon(const PrayerTimes &times)
{
    return times.asr && *times.asr > times.dhuhr && *times.asr < times.maghrib;
}

// Two transits follow each other after a day and at most half a minute more or less.
bool followsAfterADay(const PrayerTimes &today, const PrayerTimes &tomorrow)
{
    constexpr double kDay = 86'400;
    constexpr double kSlack = 120;
    return std::abs((tomorrow.dhuhr - today.dhuhr).count() - kDay) < kSlack;
}

enum class Fit : std::uint8_t { none, dateOnly, whole };

// Which day of the Sun a local date gets its times from.
struct SunDay {
    chrono::sys_days day{};
    double eastward{}; // degrees by which the place is moved to compute it
    Fit fit{};
    bool hasAsr{};
};

Coordinates moved(Coordinates place, double eastward)
{
    place.longitude += eastward;
    if (place.longitude > 180) {
        place.longitude -= 360;
    } else if (place.longitude < -180) {
        place.longitude += 360;
    }
    return place;
}

PrayerTimes movedBack(PrayerTimes times, const Coordinates &place, double eastward)
{
    const Base::Seconds later{eastward * kSecondsPerDegree};
    for (Base::Instant *time :
         {&times.fajr, &times.sunrise, &times.dhuhr, &times.maghrib, &times.isha}) {
        *time += later;
    }
    if (times.asr) {
        *times.asr += later;
    }
    times.coordinates = place;
    return times;
}

SunDay examined(const PrayerInputs &inputs, SunDay candidate, std::int64_t date)
{
    auto days = PrayerDays::from(moved(inputs.coordinates, candidate.eastward), candidate.day,
                                 asTheMethodSays(inputs.parameters));
    const auto today = days ? days->next() : std::nullopt;
    const Base::Seconds later{candidate.eastward * kSecondsPerDegree};
    if (!today || inputs.calendar.dayNumber(today->dhuhr + later) != date) {
        return candidate;
    }
    const auto tomorrow = days->next();
    const bool isWhole =
        isInOrder(*today) && (!tomorrow || followsAfterADay(*today, *tomorrow));
    candidate.fit = isWhole ? Fit::whole : Fit::dateOnly;
    candidate.hasAsr = hasAsrOfItsAfternoon(*today);
    return candidate;
}

// Nearly always the day of the same name. Near the 180th meridian the transit can fall on a
// neighbouring day of UTC, and where it passes from one to the other a day of UTC holds two
// transits or none, and its night means nothing. Two minutes' turn of the Earth to either
// side the transits are still on one side of midnight, and so little changes in two minutes
// that the times of that place, two minutes shifted, are the times of this one.
std::optional<SunDay> sunDayOf(const PrayerInputs &inputs, LocalDate date)
{
    const chrono::sys_days day{date};
    const std::int64_t dayNumber = day.time_since_epoch().count();
    std::optional<SunDay> second;
    for (const double eastward : {0.0, 0.5, -0.5}) {
        for (const int offset : {0, -1, 1}) {
            const SunDay found = examined(
                inputs, {.day = day + chrono::days{offset}, .eastward = eastward}, dayNumber);
            if (found.fit == Fit::whole) {
                return found;
            }
            if (found.fit == Fit::dateOnly && !second) {
                second = found;
            }
        }
    }
    return second;
}

std::optional<PrayerTimes> timesOf(const PrayerInputs &inputs, LocalDate date)
{
    const auto sunDay = sunDayOf(inputs, date);
    if (!sunDay) {
        return std::nullopt;
    }
    const auto times = PrayerCore::prayerTimes(moved(inputs.coordinates, sunDay->eastward),
                                               sunDay->day, inputs.parameters);
    if (!times) {
        return std::nullopt;
    }
    PrayerTimes local = movedBack(*times, inputs.coordinates, sunDay->eastward);
    local.date = date;
    if (!sunDay->hasAsr) {
        local.asr.reset();
    }
    return local;
}

LocalDate dateOf(std::int64_t dayNumber) { return chrono::sys_days{chrono::days{dayNumber}}; }

} // namespace

Result<void> PrayerCalculator::checkDate(LocalDate date)
{
    const int year = static_cast<int>(date.year());
    if (!date.ok() || year < kFirstYear || year > kLastYear) {
        return std::unexpected(
            KestError::invalidData("Prayer times are known for dates from 1900 to 2200"));
    }
    return {};
}

LocalDate PrayerCalculator::today(const PrayerInputs &inputs, Base::Instant now)
{
    return dateOf(inputs.calendar.dayNumber(now));
}

std::vector<PrayerDay> PrayerCalculator::days(const PrayerInputs &inputs, LocalDate first,
                                              int count)
{
    std::vector<PrayerDay> days;
    const chrono::sys_days start{first};
    auto times = timesOf(inputs, first);
    for (int number = 0; number < count; ++number) {
        const LocalDate tomorrow{start + chrono::days{number + 1}};
        auto next = timesOf(inputs, tomorrow);
        days.push_back(
            {.date = start + chrono::days{number},
             .times = times,
             .sunnah = times && next ? PrayerCore::sunnahTimes(*times, *next) : std::nullopt});
        times = std::move(next);
    }
    return days;
}

std::vector<PrayerDay> PrayerCalculator::comingDays(const PrayerInputs &inputs,
                                                    Base::Instant now, int count)
{
    return days(inputs, today(inputs, now), std::clamp(count, 1, kMostDays));
}

std::optional<NextPrayer> PrayerCalculator::next(const PrayerInputs &inputs, Base::Instant now)
{
    const std::int64_t today = inputs.calendar.dayNumber(now);
    std::optional<NextPrayer> first;
    // Yesterday too: in high summer isha can come after midnight.
    for (const std::int64_t day : {today - 1, today, today + 1}) {
        const auto times = timesOf(inputs, dateOf(day));
        for (const auto &[prayer, text] : enumTexts(Base::Of<Prayer>{})) {
            const auto at = times ? PrayerCore::instantOf(*times, prayer) : std::nullopt;
            if (at && *at > now && (!first || *at < first->at)) {
                first = {.prayer = prayer, .at = *at};
            }
        }
    }
    return first;
}

IslamicDate PrayerCalculator::islamicDate(LocalDate date)
{
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::Calendar> calendar{icu::Calendar::createInstance(
        *icu::TimeZone::getGMT(), icu::Locale{"en@calendar=islamic-umalqura"}, status)};
    if (U_FAILURE(status) != 0 || calendar == nullptr) {
        Base::fatalFault("KestCore/Prayer", "the Umm al-Qura calendar is missing");
    }
    constexpr double kMsPerDay = 86'400'000;
    const auto days = chrono::sys_days{date}.time_since_epoch().count();
    calendar->setTime((static_cast<double>(days) + 0.5) * kMsPerDay, status);
    return {.day = calendar->get(UCAL_DATE, status),
            .month = calendar->get(UCAL_MONTH, status) + 1,
            .year = calendar->get(UCAL_YEAR, status)};
}

} // namespace KestCore
