// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"

namespace PrayerCore
{

namespace json = Base::json;

// A place on the globe in degrees, north and east positive.
struct Coordinates {
    double latitude{};
    double longitude{};

    bool operator==(const Coordinates &) const = default;
};

consteval auto jsonFields(Base::Of<Coordinates>)
{
    using R = Coordinates;
    return std::tuple{json::Field{"latitude", &R::latitude},
                      json::Field{"longitude", &R::longitude}};
}
static_assert(json::coversAllMembers<Coordinates>());

// Whether the latitude lies within -90 to 90 and the longitude within -180 to 180, bounds
// included. Nothing is computed for other coordinates, among them NaN and the infinities.
constexpr bool isOnGlobe(const Coordinates &place)
{
    return place.latitude >= -90 && place.latitude <= 90 && place.longitude >= -180 &&
           place.longitude <= 180;
}

} // namespace PrayerCore
