// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdint>
#include <numbers>

namespace PrayerCore
{

inline constexpr double kPi = std::numbers::pi;

// What std::floor gives, without the detour that it takes on processors of the baseline.
inline double wholeBelow(double value)
{
    if (!(std::abs(value) < 9e15)) [[unlikely]] {
        return std::floor(value);
    }
    const auto whole = static_cast<double>(static_cast<std::int64_t>(value));
    return whole > value ? whole - 1 : whole;
}

// The value brought into [0, scale) by whole multiples of the scale. A hair below zero rounds
// to the scale itself and counts as zero.
inline double normalisedToScale(double value, double scale)
{
    const double inside = value - scale * wholeBelow(value / scale);
    return inside == scale ? 0 : inside;
}

struct Angle {
    double degrees{};

    static constexpr Angle fromRadians(double radians) { return {radians * 180 / kPi}; }
    constexpr double radians() const { return degrees * kPi / 180; }

    // The same direction in [0, 360).
    Angle unwound() const { return {normalisedToScale(degrees, 360)}; }

    bool operator==(const Angle &) const = default;
};

constexpr Angle operator+(Angle left, Angle right) { return {left.degrees + right.degrees}; }
constexpr Angle operator-(Angle left, Angle right) { return {left.degrees - right.degrees}; }
constexpr Angle operator*(Angle angle, double factor) { return {angle.degrees * factor}; }
constexpr Angle operator/(Angle angle, double divisor) { return {angle.degrees / divisor}; }

inline double sine(Angle angle) { return std::sin(angle.radians()); }
inline double cosine(Angle angle) { return std::cos(angle.radians()); }
inline double tangent(Angle angle) { return std::tan(angle.radians()); }

// The same direction in [-180, 180].
inline Angle closestAngle(Angle angle)
{
    const bool isClosest = angle.degrees >= -180 && angle.degrees <= 180;
    return isClosest ? angle : Angle{angle.degrees - 360 * std::round(angle.degrees / 360)};
}

} // namespace PrayerCore
