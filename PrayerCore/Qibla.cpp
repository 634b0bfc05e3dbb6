// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/Qibla.h"

namespace PrayerCore
{

std::optional<Qibla> qibla(const Coordinates &observer)
{
    if (!isOnGlobe(observer)) {
        return std::nullopt;
    }
    const Angle latitude{observer.latitude};
    const Angle eastward{kKaaba.longitude - observer.longitude};
    const double toEast = sine(eastward);
    const double toNorth =
        cosine(latitude) * tangent({kKaaba.latitude}) - sine(latitude) * cosine(eastward);
    return Qibla{Angle::fromRadians(std::atan2(toEast, toNorth)).unwound()};
}

} // namespace PrayerCore
