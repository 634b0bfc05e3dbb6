// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrayerCore/PrayerTimes.h"
#include "PrayerCore/SolarTime.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <optional>

namespace PrayerCore
{

// The times of one day after another at one place: the same as prayerTimes for each, but the
// Sun's coordinates are computed once a day instead of four times.
class PrayerDays
{
public:
    // Nothing for coordinates, a day or parameters for which prayerTimes has nothing either.
    static std::optional<PrayerDays> from(const Coordinates &coordinates,
                                          std::chrono::year_month_day first,
                                          const CalculationParameters &parameters);

    // The times of the first day, then of the next with each call. A day without times gives
    // nothing and the one after it may have them again; from the year 10000 on there are none.
    std::optional<PrayerTimes> next();

private:
    PrayerDays(std::chrono::sys_days first, const Observer &observer,
               const CalculationParameters &parameters);

    CalculationParameters m_parameters;
    Observer m_observer;
    double m_julianDay;                             // of today at 0h
    std::array<std::optional<SolarTime>, 2> m_days; // today and, where it stood, tomorrow
    std::size_t m_today{};
};

} // namespace PrayerCore
