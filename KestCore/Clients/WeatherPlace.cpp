// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherPlace.h"

#include "Base/Text.h"

#include <limits>
#include <optional>

namespace KestCore
{

namespace
{

std::string valueOf(const Settings &settings, std::string_view tool, std::string_view name)
{
    const auto found = settings.find(std::string{tool}.append(name));
    return found == settings.end() ? std::string{} : found->second;
}

// The client refuses what is no number, and says so.
double degrees(const std::string &text)
{
    return Base::numberFrom<double>(text).value_or(std::numeric_limits<double>::quiet_NaN());
}

std::optional<WeatherPlace> placeOf(const Settings &settings, std::string_view tool)
{
    const std::string latitude = valueOf(settings, tool, ".latitude");
    const std::string longitude = valueOf(settings, tool, ".longitude");
    if (latitude.empty() && longitude.empty()) {
        return std::nullopt;
    }
    const auto calendar = Calendar::inZone(valueOf(settings, tool, ".timezone"));
    return WeatherPlace{.latitude = degrees(latitude),
                        .longitude = degrees(longitude),
                        .name = valueOf(settings, tool, ".city"),
                        .calendar = calendar ? *calendar : Calendar::ofHost()};
}

} // namespace

Result<WeatherPlace> weatherPlace(const Settings &settings)
{
    for (const std::string_view tool : {"weather", "prayer"}) {
        if (auto place = placeOf(settings, tool)) {
            return *std::move(place);
        }
    }
    return std::unexpected(KestError::unavailable("Choose a city or use your location."));
}

} // namespace KestCore
