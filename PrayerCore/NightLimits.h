// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "PrayerCore/CalculationParameters.h"

#include <chrono>

namespace PrayerCore
{

// The parts of the night that fajr and isha take at most.
struct NightPortions {
    double fajr{};
    double isha{};
};

// By the parameters' high-latitude rule, else by the one recommended for the latitude.
NightPortions nightPortions(const CalculationParameters &parameters, double latitude);

// How long before sunrise fajr is at most, by the Moonsighting Committee's table: by days
// from the solstice and by the distance from the equator, in whole seconds.
Base::Seconds seasonalMorning(std::chrono::year_month_day date, double latitude);

// How long after sunset isha is at most, by the same table's column for the twilight.
Base::Seconds seasonalEvening(std::chrono::year_month_day date, double latitude, Shafaq shafaq);

} // namespace PrayerCore
