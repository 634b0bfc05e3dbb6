// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Prayer/PrayerCalculator.h"
#include "cli/Answers.h"

#include <optional>
#include <string>
#include <vector>

// The JSON documents of the prayer commands. Instants are ISO 8601 in UTC.
namespace Cli
{

struct IslamicDateAnswer {
    int day{};
    int month{};
    int year{};
};
consteval auto jsonFields(Of<IslamicDateAnswer>)
{
    using R = IslamicDateAnswer;
    return std::tuple{json::Field{"day", &R::day}, json::Field{"month", &R::month},
                      json::Field{"year", &R::year}};
}
static_assert(json::coversAllMembers<IslamicDateAnswer>());

struct TimesAnswer {
    std::string fajr{};
    std::string sunrise{};
    std::string dhuhr{};
    std::optional<std::string> asr{};
    std::string maghrib{};
    std::string isha{};
};
consteval auto jsonFields(Of<TimesAnswer>)
{
    using R = TimesAnswer;
    return std::tuple{json::Field{"fajr", &R::fajr},       json::Field{"sunrise", &R::sunrise},
                      json::Field{"dhuhr", &R::dhuhr},     json::Field{"asr", &R::asr},
                      json::Field{"maghrib", &R::maghrib}, json::Field{"isha", &R::isha}};
}
static_assert(json::coversAllMembers<TimesAnswer>());

struct SunnahAnswer {
    std::string middleOfTheNight{};
    std::string lastThirdOfTheNight{};
};
consteval auto jsonFields(Of<SunnahAnswer>)
{
    using R = SunnahAnswer;
    return std::tuple{json::Field{"middleOfTheNight", &R::middleOfTheNight},
                      json::Field{"lastThirdOfTheNight", &R::lastThirdOfTheNight}};
}
static_assert(json::coversAllMembers<SunnahAnswer>());

struct DayAnswer {
    std::string date{};
    IslamicDateAnswer islamicDate{};
    json::OrNull<TimesAnswer> times{}; // null where the Sun does not rise or set
    json::OrNull<SunnahAnswer> sunnah{};
};
consteval auto jsonFields(Of<DayAnswer>)
{
    using R = DayAnswer;
    return std::tuple{json::Field{"date", &R::date},
                      json::Field{"islamicDate", &R::islamicDate},
                      json::Field{"times", &R::times}, json::Field{"sunnah", &R::sunnah}};
}
static_assert(json::coversAllMembers<DayAnswer>());

struct NextAnswer {
    PrayerCore::Prayer prayer{};
    std::string at{};
};
consteval auto jsonFields(Of<NextAnswer>)
{
    return std::tuple{json::Field{"prayer", &NextAnswer::prayer},
                      json::Field{"at", &NextAnswer::at}};
}
static_assert(json::coversAllMembers<NextAnswer>());

struct PrayerAnswer {
    PrayerCore::CalculationMethod method{};
    std::string timezone{};
    std::vector<DayAnswer> days{};
    json::OrNull<NextAnswer> next{};
    double qibla{}; // degrees clockwise from true north
};
consteval auto jsonFields(Of<PrayerAnswer>)
{
    using R = PrayerAnswer;
    return std::tuple{json::Field{"method", &R::method}, json::Field{"timezone", &R::timezone},
                      json::Field{"days", &R::days}, json::Field{"next", &R::next},
                      json::Field{"qibla", &R::qibla}};
}
static_assert(json::coversAllMembers<PrayerAnswer>());

struct QiblaAnswer {
    double qibla{};
};
consteval auto jsonFields(Of<QiblaAnswer>)
{
    return std::tuple{json::Field{"qibla", &QiblaAnswer::qibla}};
}

struct ReminderAnswer {
    json::OrNull<std::string> next{};
};
consteval auto jsonFields(Of<ReminderAnswer>)
{
    return std::tuple{json::Field{"next", &ReminderAnswer::next}};
}

struct PlaceAnswer {
    std::string name{};
    std::string region{};
    std::string country{};
    std::string timezone{};
    double latitude{};
    double longitude{};
};
consteval auto jsonFields(Of<PlaceAnswer>)
{
    using R = PlaceAnswer;
    return std::tuple{
        json::Field{"name", &R::name},         json::Field{"region", &R::region},
        json::Field{"country", &R::country},   json::Field{"timezone", &R::timezone},
        json::Field{"latitude", &R::latitude}, json::Field{"longitude", &R::longitude}};
}
static_assert(json::coversAllMembers<PlaceAnswer>());

// A day as JSON tells it.
[[nodiscard]] Result<DayAnswer> dayAnswer(const KestCore::PrayerDay &day);

} // namespace Cli
