// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/PrayerTimes.h"

#include <QList>
#include <QPointF>

#include <array>
#include <optional>

namespace Velvetnook
{

// The sun's way over one day as a picture: x is the time, from before fajr to after isha, y
// grows downwards, both in parts of the frame. Below the horizon it can leave the frame by a
// little.
struct SunPath {
    static constexpr double kHorizon = 0.69;
    static constexpr double kLowest = 1.155;

    QList<QPointF> gone{};   // from fajr until now
    QList<QPointF> coming{}; // from now until isha
    std::optional<QPointF> sun{};
    std::array<std::optional<QPointF>, 6> marks{}; // of the six times; asr may be absent
};

SunPath sunPathOf(const PrayerCore::PrayerTimes &times, Base::Instant now);

} // namespace Velvetnook
