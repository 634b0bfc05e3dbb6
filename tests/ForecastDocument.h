// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <string>
#include <string_view>

// Where on its host the forecast service answers.
inline constexpr const char *kForecastPath = "/weatherapi/locationforecast/2.0/compact";

inline constexpr std::string_view kForecastUnits =
    R"({"air_temperature":"celsius","relative_humidity":"%","wind_speed":"m/s",)"
    R"("precipitation_amount":"mm","wind_from_direction":"degrees"})";

// A document of the forecast service around these entries, which are separated by commas.
inline std::string forecastDocument(std::string_view entries,
                                    std::string_view units = kForecastUnits,
                                    std::string_view updated = R"("2026-11-21T11:35:12Z")")
{
    std::string text =
        R"({"type":"Feature","geometry":{"type":"Point","coordinates":[31,30,5]},)"
        R"("properties":{"meta":{"updated_at":)";
    return text.append(updated)
        .append(R"(,"units":)")
        .append(units)
        .append(R"(},"timeseries":[)")
        .append(entries)
        .append("]}}");
}

// One entry of it.
inline std::string forecastEntry(Base::Instant time, double temperature,
                                 std::string_view code = "fair_day")
{
    std::string text = R"({"time":")";
    return text.append(Base::toIso8601(time).value())
        .append(R"(","data":{"instant":{"details":{"air_temperature":)")
        .append(std::to_string(temperature))
        .append(R"(,"relative_humidity":50,"wind_speed":10}},"next_1_hours":{"summary":)")
        .append(R"({"symbol_code":")")
        .append(code)
        .append(R"("},"details":{"precipitation_amount":0.25}}}})");
}
