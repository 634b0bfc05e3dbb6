// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/SolarCoordinates.h"

#include "PrayerCore/JulianDate.h"

namespace PrayerCore
{

namespace
{

Angle meanSolarLongitude(double t)
{
    return Angle{280.4664567 + 36000.76983 * t + 0.0003032 * t * t}.unwound();
}

Angle meanLunarLongitude(double t) { return Angle{218.3165 + 481267.8813 * t}.unwound(); }

Angle ascendingLunarNode(double t)
{
    return Angle{125.04452 - 1934.136261 * t + 0.0020708 * t * t + t * t * t / 450000}
        .unwound();
}

Angle meanSolarAnomaly(double t)
{
    return Angle{357.52911 + 35999.05029 * t - 0.0001537 * t * t}.unwound();
}

// How far the true Sun is ahead of the mean one.
Angle equationOfTheCentre(double t)
{
    const Angle anomaly = meanSolarAnomaly(t);
    return {(1.914602 - 0.004817 * t - 0.000014 * t * t) * sine(anomaly) +
            (0.019993 - 0.000101 * t) * sine(anomaly * 2) + 0.000289 * sine(anomaly * 3)};
}

Angle meanObliquity(double t)
{
    return {23.439291 - 0.013004167 * t - 0.0000001639 * t * t + 0.0000005036 * t * t * t};
}

Angle meanSiderealTime(double julianDay, double t)
{
    return Angle{280.46061837 + 360.98564736629 * (julianDay - 2451545) + 0.000387933 * t * t -
                 t * t * t / 38710000}
        .unwound();
}

struct Nutation {
    double inLongitude; // degrees
    Angle inObliquity;
};

Nutation nutation(double t, Angle meanLongitude)
{
    const Angle node = ascendingLunarNode(t);
    const Angle twiceNode = node * 2;
    const Angle twiceSun = meanLongitude * 2;
    const Angle twiceMoon = meanLunarLongitude(t) * 2;
    return {.inLongitude = (-17.2 / 3600) * sine(node) - (1.32 / 3600) * sine(twiceSun) -
                           (0.23 / 3600) * sine(twiceMoon) + (0.21 / 3600) * sine(twiceNode),
            .inObliquity = {(9.2 / 3600) * cosine(node) + (0.57 / 3600) * cosine(twiceSun) +
                            (0.10 / 3600) * cosine(twiceMoon) -
                            (0.09 / 3600) * cosine(twiceNode)}};
}

} // namespace

SolarCoordinates solarCoordinates(double julianDay)
{
    const double t = centuriesSinceJ2000(julianDay);
    const Angle meanLongitude = meanSolarLongitude(t);
    const Angle obliquity = meanObliquity(t);
    const Nutation shift = nutation(t, meanLongitude);

    const Angle node{125.04 - 1934.136 * t};
    const Angle trueLongitude = meanLongitude + equationOfTheCentre(t);
    const Angle longitude =
        Angle{trueLongitude.degrees - 0.00569 - 0.00478 * sine(node)}.unwound();
    const Angle apparentObliquity{obliquity.degrees + 0.00256 * cosine(node)};
    const double sineOfLongitude = sine(longitude);
    const double equation =
        shift.inLongitude * 3600 * cosine(obliquity + shift.inObliquity) / 3600;

    return {.declination =
                Angle::fromRadians(std::asin(sine(apparentObliquity) * sineOfLongitude)),
            .rightAscension =
                Angle::fromRadians(
                    std::atan2(cosine(apparentObliquity) * sineOfLongitude, cosine(longitude)))
                    .unwound(),
            .apparentSiderealTime = meanSiderealTime(julianDay, t) + Angle{equation}};
}

} // namespace PrayerCore
