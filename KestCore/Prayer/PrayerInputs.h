// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/NativeState.h"
#include "PrayerCore/CalculationParameters.h"
#include "PrayerCore/Coordinates.h"

namespace KestCore
{

// What the prayer tool's settings mean: where the user is and how the times are found there.
struct PrayerInputs {
    PrayerCore::Coordinates coordinates{};
    std::string timeZone{}; // its identifier
    Calendar calendar;      // in it
    PrayerCore::CalculationParameters parameters{};
};

// Reads the settings under "prayer.". Fails with unavailable "Allow location access to
// calculate prayer times for where you are." for a missing or invalid latitude, longitude or
// time zone and for an unknown method. An adjustment that is not a whole number, or is longer
// than a day, counts as 0.
[[nodiscard]] Result<PrayerInputs> prayerInputs(const Settings &settings);

} // namespace KestCore
