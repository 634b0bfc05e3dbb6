// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherForecast.h"

#include "KestCore/Clients/HttpDate.h"
#include "tests/ForecastDocument.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <algorithm>

using KestCore::parseForecast;
using KestCore::WeatherForecast;
using Sample = WeatherForecast::Sample;

namespace
{

const Base::Instant kNoon = Base::fromIso8601("2026-11-21T12:00:00Z").value();

Base::Result<WeatherForecast> parse(std::string document)
{
    return parseForecast(Base::json::PaddedText{std::move(document)});
}

std::string messageOf(const Base::Result<WeatherForecast> &forecast)
{
    return forecast ? "" : forecast.error().message;
}

// An entry of noon with these details of the instant and these periods.
std::string entry(std::string_view details, std::string_view periods = "")
{
    std::string text = R"({"time":"2026-11-21T12:00:00Z","data":{"instant":{"details":{)";
    return text.append(details).append("}}").append(periods).append("}}");
}

} // namespace

TEST(WeatherForecast, TurnsAnEntryIntoASample)
{
    constexpr std::string_view kWarm = R"("air_temperature":21.5)";
    struct Case {
        const char *name;
        std::string entry;
        std::optional<Sample> sample;
        std::string units = std::string{kForecastUnits};
    };
    const auto warm = [&](std::string_view more) { return std::string{kWarm}.append(more); };
    const auto sample = [](double temperature) {
        return Sample{.date = kNoon, .temperature = temperature, .code = "cloudy"};
    };
    const auto with = [&](std::string code, std::optional<double> rain = {}) {
        return Sample{
            .date = kNoon, .temperature = 21.5, .rain = rain, .code = std::move(code)};
    };
    const auto humid = [&](std::optional<double> humidity) {
        auto made = sample(21.5);
        made.humidity = humidity;
        return made;
    };
    const auto windy = [&](std::optional<double> wind) {
        auto made = sample(21.5);
        made.wind = wind;
        return made;
    };
    const std::string otherUnits =
        R"({"air_temperature":"celsius","relative_humidity":"1","wind_speed":"km/h",)"
        R"("precipitation_amount":"cm"})";
    constexpr std::string_view kRainy = R"(,"next_1_hours":{"summary":{"symbol_code":"rain"},)"
                                        R"("details":{"precipitation_amount":1.5,"other":2}})";
    constexpr std::string_view kSix = R"(,"next_6_hours":{"summary":{"symbol_code":"six"},)"
                                      R"("details":{"precipitation_amount":9}})";
    constexpr std::string_view kTwelve = R"(,"next_12_hours":{"summary":{"symbol_code":"12"}})";
    const auto both = [](std::string_view a, std::string_view b) {
        return std::string{a}.append(b);
    };
    for (const auto &[name, text, expected, units] : {
             Case{"temperature alone", entry(kWarm), sample(21.5)},
             Case{"no temperature", entry(R"("wind_speed":1)"), std::nullopt},
             Case{"101 degrees", entry(R"("air_temperature":101)"), std::nullopt},
             Case{"100 degrees", entry(R"("air_temperature":100)"), sample(100)},
             Case{"-150 degrees", entry(R"("air_temperature":-150)"), sample(-150)},
             Case{"below -150", entry(R"("air_temperature":-150.1)"), std::nullopt},
             Case{"no details", R"({"time":"2026-11-21T12:00:00Z","data":{"instant":{}}})",
                  std::nullopt},
             Case{"no instant", R"({"time":"2026-11-21T12:00:00Z","data":{}})", std::nullopt},
             Case{"no date",
                  R"({"time":"noon","data":{"instant":{"details":)"
                  R"({"air_temperature":1}}}})",
                  std::nullopt},
             Case{"humid", entry(warm(R"(,"relative_humidity":100)")), humid(100)},
             Case{"too humid", entry(warm(R"(,"relative_humidity":100.1)")), humid({})},
             Case{"humid, unit", entry(warm(R"(,"relative_humidity":50)")), humid({}),
                  otherUnits},
             Case{"10 m/s", entry(warm(R"(,"wind_speed":10)")), windy(36)},
             Case{"200 m/s", entry(warm(R"(,"wind_speed":200)")), windy(720)},
             Case{"201 m/s", entry(warm(R"(,"wind_speed":201)")), windy({})},
             Case{"-1 m/s", entry(warm(R"(,"wind_speed":-1)")), windy({})},
             Case{"wind, unit", entry(warm(R"(,"wind_speed":10)")), windy({}), otherUnits},
             Case{"rain", entry(kWarm, both(kSix, kRainy)), with("rain", 1.5)},
             Case{"rain, unit", entry(kWarm, kRainy), with("rain"), otherUnits},
             Case{"too much rain",
                  entry(kWarm, R"(,"next_1_hours":{"details":{"precipitation_amount":1001}})"),
                  with("cloudy")},
             Case{"six hours", entry(kWarm, both(kTwelve, kSix)), with("six")},
             Case{"twelve hours", entry(kWarm, kTwelve), with("12")},
             Case{"a period is chosen before its symbol",
                  entry(kWarm, both(R"(,"next_6_hours":{"summary":{}})", kTwelve)),
                  with("cloudy")},
             Case{"an hour without a symbol", entry(kWarm, both(R"(,"next_1_hours":{})", kSix)),
                  with("cloudy")},
             Case{"null is absent",
                  entry(kWarm, both(R"(,"next_1_hours":null)",
                                    R"(,"next_6_hours":{"summary":{"symbol_code":null}})")),
                  with("cloudy")},
         }) {
        SCOPED_TRACE(name);
        const std::string other = forecastEntry(kNoon + Base::Seconds{60}, 1);
        const auto forecast = parse(forecastDocument(fmt::format("{},{}", text, other), units));
        ASSERT_TRUE(forecast) << messageOf(forecast);
        ASSERT_EQ(forecast->samples.size(), expected ? 2U : 1U);
        if (expected) {
            EXPECT_EQ(forecast->samples.front(), *expected);
        }
    }
}

TEST(WeatherForecast, SortsByTimeAndTellsWhenItWasMade)
{
    std::string entries;
    for (const int hour : {3, 1, 2}) {
        entries.append(entries.empty() ? "" : ",")
            .append(forecastEntry(kNoon + Base::Seconds{3600.0 * hour}, hour));
    }
    const auto forecast =
        parse(forecastDocument(entries, kForecastUnits, R"("2026-11-21T14:00:00.5+02:00")"));
    ASSERT_TRUE(forecast) << messageOf(forecast);
    EXPECT_EQ(forecast->updated, kNoon + Base::Seconds{0.5});
    std::vector<double> temperatures;
    std::ranges::transform(forecast->samples, std::back_inserter(temperatures),
                           &Sample::temperature);
    EXPECT_EQ(temperatures, (std::vector<double>{1, 2, 3}));
}

TEST(WeatherForecast, RefusesWhatItCannotUse)
{
    const char *const unsupported = "Unsupported forecast units or date";
    const char *const unusable = "Forecast contains no usable temperatures";
    const std::string good = forecastEntry(kNoon, 20);
    struct Case {
        std::string document;
        const char *message; // null: one of the decoder
    };
    for (const auto &[document, message] : {
             Case{forecastDocument(good, R"({"air_temperature":"fahrenheit"})"), unsupported},
             Case{forecastDocument(good, R"({"air_temperature":"Celsius"})"), unsupported},
             Case{forecastDocument(good, "{}"), unsupported},
             Case{forecastDocument(good, "null"), unsupported},
             Case{forecastDocument(good, kForecastUnits, "null"), unsupported},
             Case{forecastDocument(good, kForecastUnits, R"("2026-11-21")"), unsupported},
             Case{R"({"properties":{"meta":{},"timeseries":[]}})", unsupported},
             Case{forecastDocument(""), unusable},
             Case{forecastDocument(entry(R"("air_temperature":101)")), unusable},
             Case{"", nullptr},
             Case{"{}", nullptr},
             Case{R"({"properties":{"meta":{}}})", nullptr},
             Case{R"({"properties":{"timeseries":[]}})", nullptr},
             Case{forecastDocument(good) + "x", nullptr},
             Case{forecastDocument(good).substr(0, 400), nullptr},
             Case{forecastDocument(R"({"data":{}})"), nullptr},
             Case{forecastDocument(R"({"time":"2026-11-21T12:00:00Z"})"), nullptr},
             Case{forecastDocument(entry(R"("air_temperature":"20")")), nullptr},
             Case{forecastDocument(entry(R"("air_temperature":20,"other":"20")")), nullptr},
             Case{forecastDocument(entry(R"("air_temperature":20,"air_temperature":21)")),
                  nullptr},
             Case{forecastDocument(good, R"({"air_temperature":1})"), nullptr},
         }) {
        SCOPED_TRACE(document);
        const auto forecast = parse(document);
        ASSERT_FALSE(forecast);
        EXPECT_EQ(forecast.error().kind, Base::KestError::Kind::invalidData);
        if (message != nullptr) {
            EXPECT_EQ(messageOf(forecast), message);
        } else {
            EXPECT_NE(messageOf(forecast), unsupported);
            EXPECT_NE(messageOf(forecast), unusable);
        }
    }
}

TEST(HttpDate, ReadsTheOneFormAndNoOther)
{
    struct Case {
        const char *text;
        const char *instant; // null: none
    };
    for (const auto &[text, instant] : {
             Case{"Sat, 21 Nov 2026 18:05:09 GMT", "2026-11-21T18:05:09Z"},
             Case{"Thu, 29 Feb 2024 00:00:00 UTC", "2024-02-29T00:00:00Z"},
             Case{"Thu, 01 Jan 1970 00:00:00 GMT", "1970-01-01T00:00:00Z"},
             Case{"Sun, 21 Nov 2026 18:05:09 GMT", nullptr},
             Case{"Sun, 29 Feb 2026 00:00:00 GMT", nullptr},
             Case{"Sat, 21 Nov 2026 24:00:00 GMT", nullptr},
             Case{"Sat, 21 Nov 2026 18:05:09 EST", nullptr},
             Case{"Sat, 21 nov 2026 18:05:09 GMT", nullptr},
             Case{"Sat, 21 Nov 2026 18-05-09 GMT", nullptr},
             Case{"Saturday, 21-Nov-26 18:05:09 GMT", nullptr},
             Case{"0", nullptr},
             Case{"-1", nullptr},
             Case{"", nullptr},
         }) {
        SCOPED_TRACE(text);
        const auto read = KestCore::fromHttpDate(text);
        EXPECT_EQ(read, instant == nullptr ? std::nullopt
                                           : std::optional{Base::fromIso8601(instant).value()});
    }
}
