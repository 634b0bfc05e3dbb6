// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Devotional/Calendar.h"
#include "KestCore/Models/NativeState.h"

#include <string>

namespace KestCore
{

// Where the weather is wanted.
struct WeatherPlace {
    double latitude{}; // degrees, north and east positive; not a number where none is written
    double longitude{};
    std::string name{}; // may be empty
    Calendar calendar;  // of the place; this machine's where the settings name none
};

// The place of the settings "weather.latitude", "weather.longitude", "weather.timezone" and
// "weather.city". Who has chosen none gets the weather where the prayer times are for. Fails
// with unavailable "Choose a city or use your location." when there is neither.
[[nodiscard]] Result<WeatherPlace> weatherPlace(const Settings &settings);

} // namespace KestCore
