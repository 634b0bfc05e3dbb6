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
    return fmt::format(R"("next_{}_hours":{{"summary":{{"symbol_code":"{}"}},)"
                       R"("details":{{"precipitation_amount":{}}}}})",
                       hours, symbol, rain);
}

// One step as the service gives it, all three periods included.
std::string entry(int step)
{
    const double wave = static_cast<double>(step % 24) / 10;
    return fmt::format(
               R"({{"time":"2026-11-{:02}T{:02}:00:00Z","data":{{"instant":{{"details":{{)"
               R"("air_pressure_at_sea_level":{},"air_temperature":{},)"
               R"("cloud_area_fraction":{},"relative_humidity":{},)"
               R"("wind_from_direction":{},"wind_speed":{}}}}},)",
               21 + step / 24, step % 24, 1013.2 + wave, 18.4 + wave, 34.4 + wave, 61.2 + wave,
               214.6 + wave, 4.2 + wave) +
           R"("next_12_hours":{"summary":{"symbol_code":"partlycloudy_day"},"details":{}},)" +
           period(1, "lightrainshowers_day", 0.2) + "," + period(6, "cloudy", 0.4) + "}}";
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
    const simdjson::padded_string bytes{text};
    const auto walkOnly = [&] {
        ondemand::document document;
        ondemand::value root;
        require(parser.iterate(bytes).get(document) == simdjson::SUCCESS &&
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
