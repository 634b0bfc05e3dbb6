// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/Angle.h"

namespace PrayerCore
{

// Where the Sun stands on the celestial sphere at one moment, and how far the Earth has
// turned under it.
struct SolarCoordinates {
    Angle declination{};
    Angle rightAscension{};
    Angle apparentSiderealTime{}; // at Greenwich

    bool operator==(const SolarCoordinates &) const = default;
};

// The Sun at a Julian day (Meeus, Astronomical Algorithms: chapter 25 at low accuracy for the
// place, 12 for the sidereal time, 22 for the nutation with its largest terms). The day is
// finite, as every julianDate is.
SolarCoordinates solarCoordinates(double julianDay);

} // namespace PrayerCore
