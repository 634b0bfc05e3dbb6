// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Prayer/PrayerInputs.h"
#include "PrayerCore/PrayerTimes.h"
#include "PrayerCore/SunnahTimes.h"

#include <chrono>
#include <optional>
#include <vector>

namespace KestCore
{

using LocalDate = std::chrono::year_month_day;

// A date of the Umm al-Qura calendar.
struct IslamicDate {
    int day{};   // 1 to 30
    int month{}; // 1 is Muharram
    int year{};

    bool operator==(const IslamicDate &) const = default;
};

// One local date at one place.
struct PrayerDay {
    LocalDate date{};
    // Absent on a date whose Sun does not rise or set, and on one that the place skipped.
    std::optional<PrayerCore::PrayerTimes> times{};
    // Of the night that follows; absent when the next date has no times.
    std::optional<PrayerCore::SunnahTimes> sunnah{};
};

struct NextPrayer {
    PrayerCore::Prayer prayer{};
    Base::Instant at{};

    bool operator==(const NextPrayer &) const = default;
};

// From the prayer tool's inputs to what a person sees. Holds no state.
class PrayerCalculator
{
public:
    PrayerCalculator() = delete;

    static constexpr int kFirstYear = 1900;
    static constexpr int kLastYear = 2200;
    static constexpr int kMostDays = 7;

    // Fails with invalidData "Prayer times are known for dates from 1900 to 2200" for others,
    // and for a date that does not exist.
    [[nodiscard]] static Result<void> checkDate(LocalDate date);

    static LocalDate today(const PrayerInputs &inputs, Base::Instant now);

    // So many dates one after another, each with the times of that local date in their order.
    // The Sun's transit decides which date times belong to: near the 180th meridian a date of
    // the clock and a day of the Sun in UTC part ways.
    static std::vector<PrayerDay> days(const PrayerInputs &inputs, LocalDate first, int count);
    // Today and the days that follow, 1 to 7 in all.
    static std::vector<PrayerDay> comingDays(const PrayerInputs &inputs, Base::Instant now,
                                             int count);

    // The first time after `now`, tomorrow's fajr after isha. Nothing when neither today nor
    // tomorrow has times.
    static std::optional<NextPrayer> next(const PrayerInputs &inputs, Base::Instant now);

    // The label of a date. Loads the calendar's tables on first use.
    static IslamicDate islamicDate(LocalDate date);
};

} // namespace KestCore
