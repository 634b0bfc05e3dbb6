// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Clients/WeatherForecast.h"
#include "KestCore/Devotional/Calendar.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KestCore
{

inline constexpr std::string_view kUpdatingForecast = "Updating forecast…";

// One day on the calendar of the place.
struct WeatherDay {
    std::int64_t number{}; // days since 1970-01-01
    double low{};          // degrees Celsius
    double high{};
    std::string code{}; // of what is forecast nearest to noon

    bool operator==(const WeatherDay &) const = default;
};

// What of a forecast is shown.
struct WeatherView {
    WeatherForecast::Sample now{};
    std::vector<WeatherForecast::Sample> hours{}; // the next 12 hours, as they are forecast
    std::vector<WeatherDay> days{};               // what is left of today, and six more days

    bool operator==(const WeatherView &) const = default;
};

// Fails with unavailable "Forecast is out of date. Please try again shortly." when the
// forecast says nothing of now: steps are six hours long at most.
[[nodiscard]] Result<WeatherView> weatherView(const WeatherForecast &forecast,
                                              const Calendar &calendar, Base::Instant now);

std::string temperatureText(double celsius); // "-3°"
std::string windText(std::optional<double> kilometresPerHour);
std::string rainText(std::optional<double> millimetres);

// When the forecast was made, by the clock of the place, and whether it is a previous one: the
// service makes a new one several times a day, so after twelve hours something keeps us from
// it.
std::string updatedText(const WeatherForecast &forecast, const Calendar &calendar,
                        Base::Instant now);

} // namespace KestCore
