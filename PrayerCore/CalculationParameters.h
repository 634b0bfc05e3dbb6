// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Json.h"
#include "PrayerCore/DateUtilities.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace PrayerCore
{

namespace json = Base::json;

// Whose conventions the times follow; `other` starts from zeros.
enum class CalculationMethod : std::uint8_t {
    muslimWorldLeague,
    egyptian,
    karachi,
    ummAlQura,
    dubai,
    moonsightingCommittee,
    northAmerica,
    kuwait,
    qatar,
    singapore,
    tehran,
    turkey,
    other,
};

constexpr auto enumTexts(Base::Of<CalculationMethod>)
{
    using enum CalculationMethod;
    return Base::EnumTexts<CalculationMethod, 13>{{
        {muslimWorldLeague, "muslimWorldLeague"},
        {egyptian, "egyptian"},
        {karachi, "karachi"},
        {ummAlQura, "ummAlQura"},
        {dubai, "dubai"},
        {moonsightingCommittee, "moonsightingCommittee"},
        {northAmerica, "northAmerica"},
        {kuwait, "kuwait"},
        {qatar, "qatar"},
        {singapore, "singapore"},
        {tehran, "tehran"},
        {turkey, "turkey"},
        {other, "other"},
    }};
}

// The school whose asr is meant. The number is the shadow's length over that at noon, in
// heights of what casts it, and stands for the school in documents.
enum class Madhab : std::uint8_t { shafi = 1, hanafi = 2 };

constexpr auto enumTexts(Base::Of<Madhab>)
{
    using enum Madhab;
    return Base::EnumTexts<Madhab, 2>{{{shafi, "shafi"}, {hanafi, "hanafi"}}};
}

std::optional<Madhab> madhabOf(std::int64_t shadowLength);

// How much of the night fajr and isha may take at most.
enum class HighLatitudeRule : std::uint8_t {
    middleOfTheNight,
    seventhOfTheNight,
    twilightAngle, // as many sixtieths as the twilight has degrees
};

constexpr auto enumTexts(Base::Of<HighLatitudeRule>)
{
    using enum HighLatitudeRule;
    return Base::EnumTexts<HighLatitudeRule, 3>{{{middleOfTheNight, "middleOfTheNight"},
                                                 {seventhOfTheNight, "seventhOfTheNight"},
                                                 {twilightAngle, "twilightAngle"}}};
}

// The twilight that ends when isha begins, for the Moonsighting Committee's evening limit.
enum class Shafaq : std::uint8_t {
    general, // red or white, whichever is easier in the season
    ahmer,   // the red
    abyad,   // the white
};

constexpr auto enumTexts(Base::Of<Shafaq>)
{
    using enum Shafaq;
    return Base::EnumTexts<Shafaq, 3>{
        {{general, "general"}, {ahmer, "ahmer"}, {abyad, "abyad"}}};
}

// Minutes added to the times, negative for earlier.
struct PrayerAdjustments {
    std::int64_t fajr{};
    std::int64_t sunrise{};
    std::int64_t dhuhr{};
    std::int64_t asr{};
    std::int64_t maghrib{};
    std::int64_t isha{};

    bool operator==(const PrayerAdjustments &) const = default;
};

consteval auto jsonFields(Base::Of<PrayerAdjustments>)
{
    using R = PrayerAdjustments;
    return std::tuple{
        json::Field{"fajr", &R::fajr},       json::Field{"sunrise", &R::sunrise},
        json::Field{"dhuhr", &R::dhuhr},     json::Field{"asr", &R::asr},
        json::Field{"maghrib", &R::maghrib}, json::Field{"isha", &R::isha},
    };
}
static_assert(json::coversAllMembers<PrayerAdjustments>());

// How the times of a day are found. The angles are degrees of the Sun below the horizon.
struct CalculationParameters {
    CalculationMethod method{CalculationMethod::other};
    double fajrAngle{};
    std::optional<double> maghribAngle{}; // absent: maghrib is at sunset
    double ishaAngle{};
    std::int64_t ishaInterval{}; // minutes after sunset; above 0 it takes the angle's place
    Madhab madhab{Madhab::shafi};
    std::optional<HighLatitudeRule> highLatitudeRule{}; // absent: the recommended one
    PrayerAdjustments adjustments{};                    // the user's
    Rounding rounding{Rounding::nearest};
    Shafaq shafaq{Shafaq::general};
    PrayerAdjustments methodAdjustments{}; // the method's own

    bool operator==(const CalculationParameters &) const = default;
};

// The method's own angles, interval, rounding and adjustments, for the shafi school.
CalculationParameters parametersOf(CalculationMethod method);

// Whether each angle lies within -90 to 90, so that NaN and the infinities do not. With other
// angles no day has times.
bool isUsable(const CalculationParameters &parameters);

// A seventh of the night above 48 degrees north, half of it elsewhere.
HighLatitudeRule recommendedHighLatitudeRule(double latitude);

// The parameters as a JSON document and back. Fails with invalidData for an angle that is
// not finite, and for a document that lacks a field or holds an unknown word or number.
[[nodiscard]] Base::Result<std::string> toJson(const CalculationParameters &parameters);
[[nodiscard]] Base::Result<CalculationParameters> parametersFromJson(std::string_view text);

} // namespace PrayerCore
