// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrayerCore/CalculationParameters.h"

#include "Base/JsonReader.h"
#include "Base/JsonWriter.h"

#include <array>
#include <cmath>
#include <utility>

namespace PrayerCore
{

namespace
{

using enum CalculationMethod;

// One row for each method, in the order of the enumeration.
constexpr std::array kMethods{
    CalculationParameters{.method = muslimWorldLeague,
                          .fajrAngle = 18,
                          .ishaAngle = 17,
                          .methodAdjustments = {.dhuhr = 1}},
    CalculationParameters{.method = egyptian,
                          .fajrAngle = 19.5,
                          .ishaAngle = 17.5,
                          .methodAdjustments = {.dhuhr = 1}},
    CalculationParameters{
        .method = karachi, .fajrAngle = 18, .ishaAngle = 18, .methodAdjustments = {.dhuhr = 1}},
    CalculationParameters{.method = ummAlQura, .fajrAngle = 18.5, .ishaInterval = 90},
    CalculationParameters{
        .method = dubai,
        .fajrAngle = 18.2,
        .ishaAngle = 18.2,
        .methodAdjustments = {.sunrise = -3, .dhuhr = 3, .asr = 3, .maghrib = 3}},
    CalculationParameters{.method = moonsightingCommittee,
                          .fajrAngle = 18,
                          .ishaAngle = 18,
                          .methodAdjustments = {.dhuhr = 5, .maghrib = 3}},
    CalculationParameters{.method = northAmerica,
                          .fajrAngle = 15,
                          .ishaAngle = 15,
                          .methodAdjustments = {.dhuhr = 1}},
    CalculationParameters{.method = kuwait, .fajrAngle = 18, .ishaAngle = 17.5},
    CalculationParameters{.method = qatar, .fajrAngle = 18, .ishaInterval = 90},
    CalculationParameters{.method = singapore,
                          .fajrAngle = 20,
                          .ishaAngle = 18,
                          .rounding = Rounding::up,
                          .methodAdjustments = {.dhuhr = 1}},
    CalculationParameters{
        .method = tehran, .fajrAngle = 17.7, .maghribAngle = 4.5, .ishaAngle = 14},
    CalculationParameters{
        .method = turkey,
        .fajrAngle = 18,
        .ishaAngle = 17,
        .methodAdjustments = {.sunrise = -7, .dhuhr = 5, .asr = 4, .maghrib = 7}},
    CalculationParameters{.method = other},
};

consteval bool areInOrder()
{
    std::size_t row = 0;
    for (const auto &[method, text] : enumTexts(Base::Of<CalculationMethod>{})) {
        if (row == kMethods.size() || std::to_underlying(method) != row ||
            kMethods[row].method != method) {
            return false;
        }
        ++row;
    }
    return row == kMethods.size();
}
static_assert(areInOrder());

// The document, in which the school is a number.
struct ParametersDocument {
    CalculationMethod method{};
    double fajrAngle{};
    std::optional<double> maghribAngle{};
    double ishaAngle{};
    std::int64_t ishaInterval{};
    std::int64_t madhab{};
    std::optional<HighLatitudeRule> highLatitudeRule{};
    PrayerAdjustments adjustments{};
    Rounding rounding{};
    Shafaq shafaq{};
    PrayerAdjustments methodAdjustments{};
};

consteval auto jsonFields(Base::Of<ParametersDocument>)
{
    using R = ParametersDocument;
    return std::tuple{
        json::Field{"method", &R::method},
        json::Field{"fajrAngle", &R::fajrAngle},
        json::Field{"maghribAngle", &R::maghribAngle},
        json::Field{"ishaAngle", &R::ishaAngle},
        json::Field{"ishaInterval", &R::ishaInterval},
        json::Field{"madhab", &R::madhab},
        json::Field{"highLatitudeRule", &R::highLatitudeRule},
        json::Field{"adjustments", &R::adjustments},
        json::Field{"rounding", &R::rounding},
        json::Field{"shafaq", &R::shafaq},
        json::Field{"methodAdjustments", &R::methodAdjustments},
    };
}
static_assert(json::coversAllMembers<ParametersDocument>());

} // namespace

CalculationParameters parametersOf(CalculationMethod method)
{
    return kMethods.at(std::to_underlying(method));
}

std::optional<Madhab> madhabOf(std::int64_t shadowLength)
{
    for (const Madhab madhab : {Madhab::shafi, Madhab::hanafi}) {
        if (std::to_underlying(madhab) == shadowLength) {
            return madhab;
        }
    }
    return std::nullopt;
}

bool isUsable(const CalculationParameters &parameters)
{
    const auto isAngle = [](double degrees) { return std::abs(degrees) <= 90; };
    return isAngle(parameters.fajrAngle) && isAngle(parameters.ishaAngle) &&
           isAngle(parameters.maghribAngle.value_or(0));
}

HighLatitudeRule recommendedHighLatitudeRule(double latitude)
{
    return latitude > 48 ? HighLatitudeRule::seventhOfTheNight
                         : HighLatitudeRule::middleOfTheNight;
}

Base::Result<std::string> toJson(const CalculationParameters &parameters)
{
    return json::encode(ParametersDocument{
        .method = parameters.method,
        .fajrAngle = parameters.fajrAngle,
        .maghribAngle = parameters.maghribAngle,
        .ishaAngle = parameters.ishaAngle,
        .ishaInterval = parameters.ishaInterval,
        .madhab = std::to_underlying(parameters.madhab),
        .highLatitudeRule = parameters.highLatitudeRule,
        .adjustments = parameters.adjustments,
        .rounding = parameters.rounding,
        .shafaq = parameters.shafaq,
        .methodAdjustments = parameters.methodAdjustments,
    });
}

Base::Result<CalculationParameters> parametersFromJson(std::string_view text)
{
    KEST_TRY(const auto document, json::decode<ParametersDocument>(text));
    const std::optional<Madhab> madhab = madhabOf(document.madhab);
    if (!madhab) {
        return std::unexpected(Base::KestError::invalidData("madhab: unknown number"));
    }
    return CalculationParameters{
        .method = document.method,
        .fajrAngle = document.fajrAngle,
        .maghribAngle = document.maghribAngle,
        .ishaAngle = document.ishaAngle,
        .ishaInterval = document.ishaInterval,
        .madhab = *madhab,
        .highLatitudeRule = document.highLatitudeRule,
        .adjustments = document.adjustments,
        .rounding = document.rounding,
        .shafaq = document.shafaq,
        .methodAdjustments = document.methodAdjustments,
    };
}

} // namespace PrayerCore
