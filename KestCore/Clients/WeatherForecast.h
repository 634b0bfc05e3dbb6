// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Vocabulary.h"

#include <optional>
#include <string>
#include <vector>

namespace KestCore
{

// What the weather will be at one place.
struct WeatherForecast {
    struct Sample {
        Base::Instant date{};
        double temperature{};             // degrees Celsius
        std::optional<double> humidity{}; // percent
        std::optional<double> wind{};     // km/h
        std::optional<double> rain{};     // millimetres in the hour that follows
        std::string code{};               // the sky's symbol

        bool operator==(const Sample &) const = default;
    };

    Base::Instant updated{};       // by the service
    std::vector<Sample> samples{}; // by time; at least one

    bool operator==(const WeatherForecast &) const = default;
};

// Reads a forecast document of MET Norway, Locationforecast 2.0 "compact". What it gives in
// other units than are shown, or out of all bounds, counts as not given; an entry without a
// temperature is passed over. Fails with invalidData for a document that does not decode, with
// "Unsupported forecast units or date", or with "Forecast contains no usable temperatures".
[[nodiscard]] Result<WeatherForecast> parseForecast(const json::PaddedText &body);

} // namespace KestCore
