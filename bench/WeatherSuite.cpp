// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherForecast.h"
#include "bench/Bench.h"

#include <fmt/format.h>
#include <simdjson.h>

namespace Bench
{

namespace
{

namespace ondemand = simdjson::ondemand;

constexpr int kEntries = 90;
constexpr int kRounds = 400;

volatile double sink = 0; // what is put here cannot be left out

void require(bool holds)
{
    if (!holds) {
        giveUp("the forecast of the benchmark cannot be read");
    }
}

std::string period(int hours, const char *symbol, double rain)
{
    return fmt::format(
        R"("next_{}_hours":{{"summary":{{"symbol_code":"{}","symbol_confidence":"certain"}},)"
        R"("details":{{"air_temperature_max":{},"air_temperature_min":{},)"
        R"("precipitation_amount":{},"precipitation_amount_max":{},)"
        R"("precipitation_amount_min":0.0,"probability_of_precipitation":{},)"
        R"("probability_of_thunder":0.3}}}})",
        hours, symbol, 21.4 + rain, 18.9 - rain, rain, rain + 0.7, 12.5 + rain);
}

// One step with everything that the service gives anywhere, all three periods included.
std::string entry(int step)
{
    const double wave = static_cast<double>(step % 24) / 10;
    return fmt::format(
               R"({{"time":"2026-11-{:02}T{:02}:00:00Z","data":{{"instant":{{"details":{{)"
               R"("air_pressure_at_sea_level":{},"air_temperature":{},)"
               R"("air_temperature_percentile_10":{},"air_temperature_percentile_90":{},)"
               R"("cloud_area_fraction":{},"cloud_area_fraction_high":1.6,)"
               R"("cloud_area_fraction_low":{},"cloud_area_fraction_medium":0.8,)"
               R"("dew_point_temperature":{},"fog_area_fraction":0.0,"relative_humidity":{},)"
               R"("ultraviolet_index_clear_sky":{},"wind_from_direction":{},)"
               R"("wind_speed":{},"wind_speed_of_gust":{}}}}},)",
               21 + step / 24, step % 24, 1013.2 + wave, 18.4 + wave, 17.1 + wave, 20.3 + wave,
               34.4 + wave, 3.9 + wave, 9.7 + wave, 61.2 + wave, wave, 214.6 + wave, 4.2 + wave,
               9.8 + wave) +
           period(12, "partlycloudy_day", 0.6) + "," + period(1, "lightrainshowers_day", 0.2) +
           "," + period(6, "cloudy", 0.4) + "}}";
}

std::string realSizedForecast()
{
    std::string text =
        R"({"type":"Feature","geometry":{"type":"Point","coordinates":[31.25,30.06,22]},)"
        R"("properties":{"meta":{"updated_at":"2026-11-21T11:35:12Z","units":)"
        R"({"air_temperature":"celsius","relative_humidity":"%","wind_speed":"m/s",)"
        R"("precipitation_amount":"mm"}},"timeseries":[)";
    for (int step = 0; step < kEntries; ++step) {
        text.append(step == 0 ? "" : ",").append(entry(step));
    }
    return text + "]}}";
}

// Touches every key, number and text, and keeps none of them.
double walk(ondemand::value value)
{
    double sum = 0;
    switch (value.type().value_unsafe()) {
    case ondemand::json_type::array:
        for (auto item : value.get_array()) {
            sum += walk(item.value_unsafe());
        }
        break;
    case ondemand::json_type::object:
        for (auto member : value.get_object()) {
            ondemand::field field = member.value_unsafe();
            sum += field.key().raw()[0];
            sum += walk(field.value());
        }
        break;
    case ondemand::json_type::number:
        sum = value.get_double().value_unsafe();
        break;
    default:
        sum = static_cast<double>(value.get_string().value_unsafe().size());
    }
    return sum;
}

} // namespace

// The floor is the bare parser: it walks the same bytes, with memory that it has already.
std::vector<Row> weatherSuite()
{
    const std::string text = realSizedForecast();
    const Base::json::PaddedText padded{std::string_view{text}};
    require(must(KestCore::parseForecast(padded)).samples.size() == kEntries);
    ondemand::parser parser;
    const auto walkOnly = [&] {
        ondemand::document document;
        ondemand::value root;
        require(parser.iterate(padded.view().data(), text.size(), padded.capacity())
                        .get(document) == simdjson::SUCCESS &&
                document.get_value().get(root) == simdjson::SUCCESS);
        sink = walk(root);
    };
    const Pair seconds =
        measureByTurns(kRounds, [&] { must(KestCore::parseForecast(padded)); }, walkOnly);
    const auto size = static_cast<double>(text.size()) / 1000;
    return {
        rateRow(fmt::format("read a forecast of {:.0f} kB", size), seconds, text.size(), 400),
        ratioRow("the same against the bare parser", seconds, 2.0)};
}

} // namespace Bench
