// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherForecast.h"

#include "Base/JsonReader.h"

#include <algorithm>

namespace KestCore
{

namespace
{

// The document, as far as it is used, under the service's own keys.
struct Summary {
    std::optional<std::string> symbolCode{};
};
consteval auto jsonFields(Of<Summary>)
{
    return std::tuple{json::Field{"symbol_code", &Summary::symbolCode}};
}

struct Details {
    std::optional<double> temperature{};
    std::optional<double> humidity{};
    std::optional<double> wind{};
    std::optional<double> precipitation{};
};
consteval auto jsonFields(Of<Details>)
{
    using R = Details;
    return std::tuple{json::Field{"air_temperature", &R::temperature},
                      json::Field{"relative_humidity", &R::humidity},
                      json::Field{"wind_speed", &R::wind},
                      json::Field{"precipitation_amount", &R::precipitation}};
}
static_assert(json::coversAllMembers<Details>());

struct Period {
    std::optional<Summary> summary{};
    std::optional<json::Numbers<Details>> details{};
};
consteval auto jsonFields(Of<Period>)
{
    return std::tuple{json::Field{"summary", &Period::summary},
                      json::Field{"details", &Period::details}};
}
static_assert(json::coversAllMembers<Period>());

struct Values {
    std::optional<Period> instant{};
    std::optional<Period> next12Hours{};
    std::optional<Period> next1Hours{};
    std::optional<Period> next6Hours{};
};
consteval auto jsonFields(Of<Values>)
{
    using R = Values;
    return std::tuple{json::Field{"instant", &R::instant},
                      json::Field{"next_12_hours", &R::next12Hours},
                      json::Field{"next_1_hours", &R::next1Hours},
                      json::Field{"next_6_hours", &R::next6Hours}};
}
static_assert(json::coversAllMembers<Values>());

struct Entry {
    std::string time{};
    Values data{};
};
consteval auto jsonFields(Of<Entry>)
{
    return std::tuple{json::Field{"time", &Entry::time}, json::Field{"data", &Entry::data}};
}
static_assert(json::coversAllMembers<Entry>());

using Units = std::map<std::string, std::string>;

struct Meta {
    std::optional<std::string> updatedAt{};
    std::optional<Units> units{};
};
consteval auto jsonFields(Of<Meta>)
{
    return std::tuple{json::Field{"updated_at", &Meta::updatedAt},
                      json::Field{"units", &Meta::units}};
}
static_assert(json::coversAllMembers<Meta>());

struct Properties {
    Meta meta{};
    std::vector<Entry> timeseries{};
};
consteval auto jsonFields(Of<Properties>)
{
    return std::tuple{json::Field{"meta", &Properties::meta},
                      json::Field{"timeseries", &Properties::timeseries}};
}
static_assert(json::coversAllMembers<Properties>());

struct Payload {
    Properties properties{};
};
consteval auto jsonFields(Of<Payload>)
{
    return std::tuple{json::Field{"properties", &Payload::properties}};
}

// Whether the document gives a quantity in the unit that is shown here.
struct KnownUnits {
    bool humidity{};
    bool wind{};
    bool precipitation{};
};

bool isIn(const Units &units, const char *quantity, std::string_view unit)
{
    const auto found = units.find(quantity);
    return found != units.end() && found->second == unit;
}

// Absent when it is not given, not in a unit that is known, or out of all bounds.
std::optional<double> within(std::optional<double> value, bool isKnown, double least,
                             double most)
{
    if (!isKnown || !value || !(*value >= least && *value <= most)) {
        return std::nullopt;
    }
    return *value + 0.0; // no -0
}

Details detailsOf(const std::optional<Period> &period)
{
    return period && period->details ? period->details->kept : Details{};
}

std::string codeOf(std::optional<Period> &period)
{
    if (!period || !period->summary) {
        return "cloudy";
    }
    return std::move(period->summary->symbolCode).value_or("cloudy");
}

std::optional<WeatherForecast::Sample> sampleOf(Entry &entry, const KnownUnits &units)
{
    constexpr double kKilometresPerHour = 3.6; // in one metre a second
    const auto date = Base::fromIso8601(entry.time);
    const Details details = detailsOf(entry.data.instant);
    const auto temperature = within(details.temperature, true, -150, 100);
    if (!date || !temperature) {
        return std::nullopt;
    }
    WeatherForecast::Sample sample{.date = *date, .temperature = *temperature};
    sample.humidity = within(details.humidity, units.humidity, 0, 100);
    if (const auto wind = within(details.wind, units.wind, 0, 200)) {
        sample.wind = *wind * kKilometresPerHour;
    }
    auto &[instant, next12, next1, next6] = entry.data;
    if (next1) {
        sample.rain = within(detailsOf(next1).precipitation, units.precipitation, 0, 1000);
        sample.code = codeOf(next1);
    } else {
        sample.code = codeOf(next6 ? next6 : next12);
    }
    return sample;
}

} // namespace

Result<WeatherForecast> parseForecast(const json::PaddedText &body)
{
    KEST_TRY(Payload payload, json::decode<Payload>(body));
    auto &[meta, timeseries] = payload.properties;
    const Units units = std::move(meta.units).value_or(Units{});
    const auto updated = Base::fromIso8601(meta.updatedAt.value_or(""));
    if (!isIn(units, "air_temperature", "celsius") || !updated) {
        return std::unexpected(KestError::invalidData("Unsupported forecast units or date"));
    }
    const KnownUnits known{.humidity = isIn(units, "relative_humidity", "%"),
                           .wind = isIn(units, "wind_speed", "m/s"),
                           .precipitation = isIn(units, "precipitation_amount", "mm")};
    WeatherForecast forecast{.updated = *updated};
    forecast.samples.reserve(timeseries.size());
    for (Entry &entry : timeseries) {
        if (auto sample = sampleOf(entry, known)) {
            forecast.samples.push_back(*std::move(sample));
        }
    }
    if (forecast.samples.empty()) {
        return std::unexpected(
            KestError::invalidData("Forecast contains no usable temperatures"));
    }
    std::ranges::stable_sort(forecast.samples, {}, &WeatherForecast::Sample::date);
    return forecast;
}

} // namespace KestCore
