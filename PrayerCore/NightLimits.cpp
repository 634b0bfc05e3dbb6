// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/NightLimits.h"

#include <cmath>

namespace PrayerCore
{

namespace
{

// Minutes at the equator and what 55 degrees of latitude add.
struct Line {
    double atEquator{};
    double rise{};
};

// The values that a year runs through: from a at the winter solstice over b, c and d in
// summer and back.
struct Season {
    Line a{};
    Line b{};
    Line c{};
    Line d{};
};

constexpr Season kMorning{{75, 28.65}, {75, 19.44}, {75, 32.74}, {75, 48.10}};
constexpr Season kEveningGeneral{{75, 25.60}, {75, 2.050}, {75, -9.21}, {75, 6.14}};
constexpr Season kEveningAhmer{{62, 17.40}, {62, -7.16}, {62, 5.12}, {62, 19.44}};
constexpr Season kEveningAbyad{{75, 25.60}, {75, 7.16}, {75, 36.84}, {75, 81.84}};

const Season &evening(Shafaq shafaq)
{
    switch (shafaq) {
    case Shafaq::ahmer:
        return kEveningAhmer;
    case Shafaq::abyad:
        return kEveningAbyad;
    case Shafaq::general:
        break;
    }
    return kEveningGeneral;
}

// The season's minutes on the day, in whole seconds.
Base::Seconds seasonal(const Season &season, std::chrono::year_month_day date, double latitude)
{
    const auto valueOf = [latitude](const Line &line) {
        return line.atEquator + line.rise / 55 * std::abs(latitude);
    };
    const double a = valueOf(season.a);
    const double b = valueOf(season.b);
    const double c = valueOf(season.c);
    const double d = valueOf(season.d);
    const int days = daysFromSolstice(dayOfYear(date), static_cast<int>(date.year()), latitude);
    const auto minutes = [=]() {
        if (days < 91) {
            return a + (b - a) / 91 * days;
        }
        if (days < 137) {
            return b + (c - b) / 46 * (days - 91);
        }
        if (days < 183) {
            return c + (d - c) / 46 * (days - 137);
        }
        if (days < 229) {
            return d + (c - d) / 46 * (days - 183);
        }
        if (days < 275) {
            return c + (b - c) / 46 * (days - 229);
        }
        return b + (a - b) / 91 * (days - 275);
    }();
    return Base::Seconds{std::round(minutes * 60)};
}

} // namespace

NightPortions nightPortions(const CalculationParameters &parameters, double latitude)
{
    switch (parameters.highLatitudeRule.value_or(recommendedHighLatitudeRule(latitude))) {
    case HighLatitudeRule::seventhOfTheNight:
        return {.fajr = 1.0 / 7, .isha = 1.0 / 7};
    case HighLatitudeRule::twilightAngle:
        return {.fajr = parameters.fajrAngle / 60, .isha = parameters.ishaAngle / 60};
    case HighLatitudeRule::middleOfTheNight:
        break;
    }
    return {.fajr = 1.0 / 2, .isha = 1.0 / 2};
}

Base::Seconds seasonalMorning(std::chrono::year_month_day date, double latitude)
{
    return seasonal(kMorning, date, latitude);
}

Base::Seconds seasonalEvening(std::chrono::year_month_day date, double latitude, Shafaq shafaq)
{
    return seasonal(evening(shafaq), date, latitude);
}

} // namespace PrayerCore
