// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/PrayerDays.h"

#include "Base/Fault.h"
#include "PrayerCore/JulianDate.h"
#include "PrayerCore/NightLimits.h"

#include <cmath>
#include <limits>

namespace PrayerCore
{

namespace
{

using Base::Instant;
using Base::Seconds;
using Side = SolarTime::Side;

// The hour of the day as an instant, NaN for one that the day does not have: a comparison
// with it is false, so that the limit on the other side holds.
Instant instantAt(std::chrono::sys_days day, double hours)
{
    const std::optional<TimeComponents> time = timeComponents(hours);
    return time ? Instant{at(day, *time)}
                : Base::fromSeconds1970(std::numeric_limits<double>::quiet_NaN());
}

bool isAbsent(Instant instant) { return std::isnan(Base::seconds1970(instant)); }

// Ends the program where the sum has no exact seconds: minutes are the caller's to bound.
Instant plusMinutes(Instant instant, std::int64_t minutes)
{
    std::int64_t seconds = 0;
    const bool isTooLong = __builtin_mul_overflow(minutes, std::int64_t{60}, &seconds);
    const Instant sum = instant + Seconds{static_cast<double>(seconds)};
    if (isTooLong || !hasExactSeconds(sum)) {
        Base::fatalFault("PrayerCore/PrayerDays", "A prayer time has too many minutes.");
    }
    return sum;
}

// The day's times before adjustment and rounding.
struct RawTimes {
    Instant sunrise{};
    Instant dhuhr{};
    Instant sunset{};
    Seconds night{}; // from this sunset to the next sunrise
};

// Finds the times of one day; lives only as long as what it refers to.
class DayCalculation
{
public:
    DayCalculation(const SolarTime &solar, const CalculationParameters &parameters,
                   const RawTimes &raw)
        : m_solar(solar), m_parameters(parameters), m_raw(raw)
    {
        findCrossings();
    }

    std::optional<PrayerTimes> times() const
    {
        using A = PrayerAdjustments;
        const Instant isha = rawIsha();
        std::optional<PrayerTimes> times{std::in_place};
        times->fajr = finished(rawFajr(), &A::fajr);
        times->sunrise = finished(m_raw.sunrise, &A::sunrise);
        times->dhuhr = finished(m_raw.dhuhr, &A::dhuhr);
        if (!isAbsent(m_asr)) {
            times->asr = finished(m_asr, &A::asr);
        }
        times->maghrib = finished(rawMaghrib(isha), &A::maghrib);
        times->isha = finished(isha, &A::isha);
        times->coordinates = m_solar.observer();
        times->date = m_solar.date();
        times->calculationParameters = m_parameters;
        return times;
    }

private:
    double latitude() const { return m_solar.observer().latitude; }
    bool isSeasonal() const
    {
        return m_parameters.method == CalculationMethod::moonsightingCommittee;
    }
    // Where the Committee reads no twilight from the Sun any more.
    bool isFarNorth() const { return isSeasonal() && latitude() >= 55; }

    void findCrossings()
    {
        using Crossing = SolarTime::Crossing;
        const Crossing asr{
            m_solar.altitudeForShadowLength(static_cast<double>(m_parameters.madhab)),
            Side::afterTransit};
        const Crossing dawn{{-m_parameters.fajrAngle}, Side::beforeTransit};
        const Crossing dusk{{-m_parameters.ishaAngle}, Side::afterTransit};
        if (m_parameters.ishaInterval > 0) {
            const auto hours = m_solar.timesForAltitudes(std::array{asr, dawn});
            m_asr = instantAt(m_solar.date(), hours[0]);
            m_dawn = instantAt(m_solar.date(), hours[1]);
            return;
        }
        const auto hours = m_solar.timesForAltitudes(std::array{asr, dawn, dusk});
        m_asr = instantAt(m_solar.date(), hours[0]);
        m_dawn = instantAt(m_solar.date(), hours[1]);
        m_dusk = instantAt(m_solar.date(), hours[2]);
    }

    Instant rawFajr() const
    {
        const Instant fajr = isFarNorth() ? m_raw.sunrise - m_raw.night / 7 : m_dawn;
        const Seconds longest =
            isSeasonal() ? seasonalMorning(m_solar.date(), latitude())
                         : nightPortions(m_parameters, latitude()).fajr * m_raw.night;
        const Instant earliest = m_raw.sunrise - longest;
        return fajr >= earliest ? fajr : earliest;
    }

    Instant rawIsha() const
    {
        if (m_parameters.ishaInterval > 0) {
            return plusMinutes(m_raw.sunset, m_parameters.ishaInterval);
        }
        const Instant isha = isFarNorth() ? m_raw.sunset + m_raw.night / 7 : m_dusk;
        const Seconds longest =
            isSeasonal() ? seasonalEvening(m_solar.date(), latitude(), m_parameters.shafaq)
                         : nightPortions(m_parameters, latitude()).isha * m_raw.night;
        const Instant latest = m_raw.sunset + longest;
        return isha <= latest ? isha : latest;
    }

    Instant rawMaghrib(Instant isha) const
    {
        if (!m_parameters.maghribAngle) {
            return m_raw.sunset;
        }
        const Instant maghrib =
            instantAt(m_solar.date(), m_solar.timeForAltitude({-*m_parameters.maghribAngle},
                                                              Side::afterTransit));
        const bool fits = maghrib > m_raw.sunset && maghrib < isha;
        return fits ? maghrib : m_raw.sunset;
    }

    Instant finished(Instant raw, std::int64_t PrayerAdjustments::*prayer) const
    {
        std::int64_t minutes = 0;
        if (__builtin_add_overflow(m_parameters.adjustments.*prayer,
                                   m_parameters.methodAdjustments.*prayer, &minutes)) {
            Base::fatalFault("PrayerCore/PrayerDays", "A prayer time has too many minutes.");
        }
        const Instant adjusted = plusMinutes(raw, minutes);
        return roundToMinute(std::chrono::floor<std::chrono::seconds>(adjusted),
                             m_parameters.rounding);
    }

    const SolarTime &m_solar;
    const CalculationParameters &m_parameters;
    const RawTimes &m_raw;
    Instant m_asr{};
    Instant m_dawn{}; // the Sun at the fajr angle
    Instant m_dusk{}; // and at the isha angle; not found where an interval counts
};

RawTimes rawTimes(const SolarTime &today, const SolarTime &tomorrow)
{
    const Instant sunset = instantAt(today.date(), today.sunset());
    return {.sunrise = instantAt(today.date(), today.sunrise()),
            .dhuhr = instantAt(today.date(), today.transit()),
            .sunset = sunset,
            .night = instantAt(tomorrow.date(), tomorrow.sunrise()) - sunset};
}

// Without a rise, a set or a transit today, or a rise tomorrow, there is nothing to go by.
bool isComplete(const RawTimes &raw)
{
    return !isAbsent(raw.sunrise) && !isAbsent(raw.dhuhr) && !std::isnan(raw.night.count());
}

} // namespace

std::optional<PrayerDays> PrayerDays::from(const Coordinates &coordinates,
                                           std::chrono::year_month_day first,
                                           const CalculationParameters &parameters)
{
    const std::optional<Observer> observer = observerAt(coordinates);
    if (!observer || !isInCalendar(first) || !isUsable(parameters)) {
        return std::nullopt;
    }
    return PrayerDays{first, *observer, parameters};
}

PrayerDays::PrayerDays(std::chrono::sys_days first, const Observer &observer,
                       const CalculationParameters &parameters)
    : m_parameters(parameters), m_observer(observer),
      m_julianDay(julianDate(componentsOf(first)))
{
    m_days[m_today].emplace(first, observer, solarCoordinates(m_julianDay - 1),
                            solarCoordinates(m_julianDay), solarCoordinates(m_julianDay + 1));
}

std::optional<PrayerTimes> PrayerDays::next()
{
    // NOLINTNEXTLINE(bugprone-unchecked-optional-access): filled at first and then each time
    const SolarTime &today = *m_days[m_today];
    if (today.date() > kLastDay) {
        return std::nullopt;
    }
    m_julianDay += 1;
    m_today = 1 - m_today;
    const SolarTime &tomorrow =
        m_days[m_today].emplace(today.date() + std::chrono::days{1}, m_observer, today.solar(),
                                today.nextSolar(), solarCoordinates(m_julianDay + 1));
    const RawTimes raw = rawTimes(today, tomorrow);
    return isComplete(raw) ? DayCalculation{today, m_parameters, raw}.times() : std::nullopt;
}

} // namespace PrayerCore
