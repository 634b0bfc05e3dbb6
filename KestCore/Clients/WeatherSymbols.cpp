// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherSymbols.h"

#include <algorithm>

namespace KestCore
{

namespace
{

enum class Picture : std::uint8_t { clear, fewClouds, clouds, fog, rain, showers, snow, storm };

struct Row {
    std::string_view code;
    std::string_view words;
    Picture picture;
};

using enum Picture;
// Two codes of the service have one "s" too many; both spellings are here in case it mends
// that. There is no icon for sleet on the desktop; it shows as snow.
constexpr Row kRows[] = {
    {"clearsky", "Clear sky", clear},
    {"fair", "Fair", fewClouds},
    {"partlycloudy", "Partly cloudy", fewClouds},
    {"cloudy", "Cloudy", clouds},
    {"fog", "Fog", fog},
    {"lightrain", "Light rain", rain},
    {"rain", "Rain", rain},
    {"heavyrain", "Heavy rain", rain},
    {"lightrainshowers", "Light rain showers", showers},
    {"rainshowers", "Rain showers", showers},
    {"heavyrainshowers", "Heavy rain showers", showers},
    {"lightrainandthunder", "Light rain and thunder", storm},
    {"rainandthunder", "Rain and thunder", storm},
    {"heavyrainandthunder", "Heavy rain and thunder", storm},
    {"lightrainshowersandthunder", "Light rain showers and thunder", storm},
    {"rainshowersandthunder", "Rain showers and thunder", storm},
    {"heavyrainshowersandthunder", "Heavy rain showers and thunder", storm},
    {"lightsleet", "Light sleet", snow},
    {"sleet", "Sleet", snow},
    {"heavysleet", "Heavy sleet", snow},
    {"lightsleetshowers", "Light sleet showers", snow},
    {"sleetshowers", "Sleet showers", snow},
    {"heavysleetshowers", "Heavy sleet showers", snow},
    {"lightsleetandthunder", "Light sleet and thunder", storm},
    {"sleetandthunder", "Sleet and thunder", storm},
    {"heavysleetandthunder", "Heavy sleet and thunder", storm},
    {"lightssleetshowersandthunder", "Light sleet showers and thunder", storm},
    {"lightsleetshowersandthunder", "Light sleet showers and thunder", storm},
    {"sleetshowersandthunder", "Sleet showers and thunder", storm},
    {"heavysleetshowersandthunder", "Heavy sleet showers and thunder", storm},
    {"lightsnow", "Light snow", snow},
    {"snow", "Snow", snow},
    {"heavysnow", "Heavy snow", snow},
    {"lightsnowshowers", "Light snow showers", snow},
    {"snowshowers", "Snow showers", snow},
    {"heavysnowshowers", "Heavy snow showers", snow},
    {"lightsnowandthunder", "Light snow and thunder", storm},
    {"snowandthunder", "Snow and thunder", storm},
    {"heavysnowandthunder", "Heavy snow and thunder", storm},
    {"lightssnowshowersandthunder", "Light snow showers and thunder", storm},
    {"lightsnowshowersandthunder", "Light snow showers and thunder", storm},
    {"snowshowersandthunder", "Snow showers and thunder", storm},
    {"heavysnowshowersandthunder", "Heavy snow showers and thunder", storm},
};

std::string_view iconOf(Picture picture, bool isNight)
{
    switch (picture) {
    case clear:
        return isNight ? "weather-clear-night" : "weather-clear";
    case fewClouds:
        return isNight ? "weather-few-clouds-night" : "weather-few-clouds";
    case clouds:
        return "weather-overcast";
    case fog:
        return "weather-fog";
    case rain:
        return "weather-showers";
    case showers:
        return "weather-showers-scattered";
    case snow:
        return "weather-snow";
    case storm:
        break;
    }
    return "weather-storm";
}

} // namespace

WeatherSymbol weatherSymbol(std::string_view code)
{
    bool isNight = false;
    for (const std::string_view part : {"_day", "_night", "_polartwilight"}) {
        if (code.ends_with(part)) {
            code.remove_suffix(part.size());
            isNight = part != "_day";
            break;
        }
    }
    const auto *row = std::ranges::find(kRows, code, &Row::code);
    if (row == std::end(kRows)) {
        return {.words = "Unknown sky", .icon = iconOf(clouds, isNight)};
    }
    return {.words = row->words, .icon = iconOf(row->picture, isNight)};
}

} // namespace KestCore
