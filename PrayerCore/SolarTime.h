// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/Coordinates.h"
#include "PrayerCore/SolarCoordinates.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace PrayerCore
{

// A place with what every altitude of the Sun there needs of its latitude.
struct Observer {
    Coordinates coordinates{};
    double sineOfLatitude{};
    double cosineOfLatitude{};
};

// Nothing for coordinates that are not on the globe.
std::optional<Observer> observerAt(const Coordinates &coordinates);

// A quantity through its values on the day before, the day and the day after
// (Meeus, Astronomical Algorithms, chapter 3).
class ThreePoints
{
public:
    ThreePoints(double middle, double rise, double nextRise)
        : m_middle(middle), m_rise(rise), m_nextRise(nextRise)
    {
    }

    // The value `n` days after 0h of the day.
    double at(double n) const
    {
        return m_middle + n / 2 * (m_rise + m_nextRise + n * (m_nextRise - m_rise));
    }

private:
    double m_middle;
    double m_rise;     // from the day before to the day
    double m_nextRise; // from the day to the day after
};

// The Sun's day at one place, in hours of universal time after 0h of the date. A time may lie
// before 0 or from 24 on, and NaN is a time that the day does not have because the Sun never
// reaches the altitude. The formulas are those of chapter 15 of Meeus' book, with a single
// step of correction: within a minute while the Sun crosses the altitude steeply, and worse
// where it only just reaches it.
class SolarTime
{
public:
    enum class Side : std::uint8_t { beforeTransit, afterTransit };

    // Nothing for coordinates that are not on the globe and for a date that does not exist
    // or lies outside the years 1 to 9999.
    static std::optional<SolarTime> make(std::chrono::year_month_day date,
                                         const Coordinates &coordinates);

    // For a caller that has the Sun's coordinates at 0h of the day before, the day and the
    // day after.
    SolarTime(std::chrono::sys_days date, const Observer &observer,
              const SolarCoordinates &previous, const SolarCoordinates &solar,
              const SolarCoordinates &next);

    std::chrono::sys_days date() const { return m_date; }
    const Coordinates &observer() const { return m_observer.coordinates; }
    const SolarCoordinates &prevSolar() const { return m_previous; }
    const SolarCoordinates &solar() const { return m_solar; }
    const SolarCoordinates &nextSolar() const { return m_next; }
    double approxTransit() const { return m_approxTransit; } // fraction of a day, in [0, 1)

    double transit() const { return m_transit; }
    double sunrise() const { return m_sunrise; } // centre at -50/60 degrees
    double sunset() const { return m_sunset; }

    // When the Sun's centre stands at that altitude, without refraction.
    double timeForAltitude(Angle altitude, Side side) const;

    // The same for several altitudes. Each step is taken for all of them before the next, so
    // that the processor works on them side by side.
    struct Crossing {
        Angle altitude{};
        Side side{};
    };
    template <std::size_t N>
    std::array<double, N> timesForAltitudes(const std::array<Crossing, N> &crossings) const;

    // When, after transit, a shadow is longer than at transit by so many times the height of
    // what casts it, and how high the Sun then stands.
    double timeForShadowLength(double shadowLength) const;
    Angle altitudeForShadowLength(double shadowLength) const;

private:
    // Where the Sun is at a moment, seen from the observer's meridian.
    struct Sky {
        double sineOfDeclination;
        double cosineOfDeclination;
        double sineOfHourAngle;
        double cosineOfHourAngle;
    };

    double correctedTransit() const;
    // How far from transit the Sun of 0h has the altitude, in days; NaN when it never has.
    double reachOf(double sineOfAltitude) const;
    Sky skyAt(double dayFraction) const;
    // The fraction of the day brought nearer to the altitude, in hours.
    double corrected(double dayFraction, const Sky &sky, Angle altitude) const;
    Angle siderealTimeAt(double dayFraction) const;

    std::chrono::sys_days m_date;
    Observer m_observer;
    SolarCoordinates m_previous;
    SolarCoordinates m_solar;
    SolarCoordinates m_next;
    ThreePoints m_rightAscension;
    ThreePoints m_declination;
    double m_sineOfDeclination;
    double m_cosineOfDeclination;
    double m_approxTransit;
    double m_transit;
    double m_sunrise{};
    double m_sunset{};
};

template <std::size_t N>
std::array<double, N>
SolarTime::timesForAltitudes(const std::array<Crossing, N> &crossings) const
{
    std::array<double, N> times;
    for (std::size_t i = 0; i < N; ++i) {
        const double reach = reachOf(sine(crossings[i].altitude));
        times[i] = m_approxTransit + (crossings[i].side == Side::afterTransit ? reach : -reach);
    }
    std::array<Sky, N> skies;
    for (std::size_t i = 0; i < N; ++i) {
        skies[i] = skyAt(times[i]);
    }
    for (std::size_t i = 0; i < N; ++i) {
        times[i] = corrected(times[i], skies[i], crossings[i].altitude);
    }
    return times;
}

// The days that the module computes.
inline constexpr std::chrono::sys_days kFirstDay = std::chrono::year{1} / 1 / 1;
inline constexpr std::chrono::sys_days kLastDay = std::chrono::year{9999} / 12 / 31;

// Whether the day exists and is one of them.
constexpr bool isInCalendar(std::chrono::year_month_day date)
{
    return date.ok() && date >= kFirstDay && date <= kLastDay;
}

} // namespace PrayerCore
