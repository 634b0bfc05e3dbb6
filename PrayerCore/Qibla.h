// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/Angle.h"
#include "PrayerCore/Coordinates.h"

#include <optional>

namespace PrayerCore
{

inline constexpr Coordinates kKaaba{.latitude = 21.4225241, .longitude = 39.8261818};

// The way to the Kaaba along the great circle.
struct Qibla {
    Angle direction{}; // clockwise from true north, in [0, 360)

    bool operator==(const Qibla &) const = default;
};

// Nothing for coordinates that are not on the globe. At the Kaaba and at the point opposite
// to it every direction is right, and the one given says nothing.
std::optional<Qibla> qibla(const Coordinates &observer);

} // namespace PrayerCore
