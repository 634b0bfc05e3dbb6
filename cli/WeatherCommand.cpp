// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "HttpTransport/HttpTransport.h"
#include "KestCore/Clients/ServiceAddress.h"
#include "KestCore/Clients/WeatherClient.h"
#include "KestCore/Clients/WeatherPlace.h"
#include "KestCore/Clients/WeatherPresentation.h"
#include "KestCore/Clients/WeatherSymbols.h"
#include "cli/Answers.h"
#include "cli/NumberOption.h"
#include "cli/PrayerText.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <unistd.h>

#include <cstdio>
#include <memory>

namespace Cli
{

namespace
{

// A forecast as it is answered, its instants written out.
struct SampleAnswer {
    std::string date{};
    double temperature{};
    std::optional<double> humidity{};
    std::optional<double> wind{};
    std::optional<double> rain{};
    std::string code{};
};
consteval auto jsonFields(Of<SampleAnswer>)
{
    using R = SampleAnswer;
    return std::tuple{
        json::Field{"date", &R::date},         json::Field{"temperature", &R::temperature},
        json::Field{"humidity", &R::humidity}, json::Field{"wind", &R::wind},
        json::Field{"rain", &R::rain},         json::Field{"code", &R::code}};
}
static_assert(json::coversAllMembers<SampleAnswer>());

struct ForecastAnswer {
    std::string updated{};
    std::vector<SampleAnswer> samples{};
};
consteval auto jsonFields(Of<ForecastAnswer>)
{
    return std::tuple{json::Field{"updated", &ForecastAnswer::updated},
                      json::Field{"samples", &ForecastAnswer::samples}};
}
static_assert(json::coversAllMembers<ForecastAnswer>());

using KestCore::WeatherForecast;
using KestCore::WeatherPlace;
using KestCore::WeatherView;

struct Arguments {
    std::optional<double> latitude{};
    std::optional<double> longitude{};
};

Result<WeatherPlace> placeFor(const Session &session, const Arguments &args)
{
    if (args.latitude && args.longitude) {
        return WeatherPlace{.latitude = *args.latitude,
                            .longitude = *args.longitude,
                            .calendar = KestCore::Calendar::ofHost()};
    }
    KEST_TRY(const auto store, session.openStore());
    return KestCore::weatherPlace(store.state().settings);
}

Result<std::string> service()
{
    std::string address =
        KestCore::serviceAddress(KestCore::kWeatherService, "KEST_WEATHER_URL");
    if (!KestCore::isServiceAddress(address)) {
        return std::unexpected(
            KestError::invalidData("KEST_WEATHER_URL must be https:// and a host name."));
    }
    return address;
}

// Beside the answer, as it is for who set the service up.
void warn(std::string_view message)
{
    std::fprintf(stderr, "kest: %s\n", printable(message).c_str());
}

Result<ForecastAnswer> answerFor(const WeatherForecast &forecast)
{
    ForecastAnswer answer;
    KEST_TRY(answer.updated, Base::toIso8601(forecast.updated));
    for (const auto &sample : forecast.samples) {
        KEST_TRY(std::string date, Base::toIso8601(sample.date));
        answer.samples.push_back({.date = std::move(date),
                                  .temperature = sample.temperature,
                                  .humidity = sample.humidity,
                                  .wind = sample.wind,
                                  .rain = sample.rain,
                                  .code = sample.code});
    }
    return answer;
}

std::string wordsOf(const std::string &code)
{
    return std::string{KestCore::weatherSymbol(code).words};
}

void printNow(const Console &console, const WeatherPlace &place, const WeatherView &view)
{
    const auto &now = view.now;
    const std::string humidity =
        now.humidity ? fmt::format(" · Humidity {:.0f} %", *now.humidity) : "";
    if (!place.name.empty()) {
        console.line(console.styled(printable(place.name), Style::strong));
    }
    console.line(fmt::format(
        "{}{} · {} · {}",
        console.styled(
            fmt::format("{} {}", KestCore::temperatureText(now.temperature), wordsOf(now.code)),
            Style::strong),
        humidity, KestCore::windText(now.wind), KestCore::rainText(now.rain)));
}

void printHours(const Console &console, const WeatherPlace &place, const WeatherView &view)
{
    std::vector<std::vector<std::string>> rows;
    for (const auto &hour : view.hours) {
        rows.push_back(
            {clockText(place.calendar, hour.date), KestCore::temperatureText(hour.temperature),
             hour.wind ? KestCore::windText(hour.wind) : "",
             hour.rain ? fmt::format("{:.1f} mm", *hour.rain) : "", wordsOf(hour.code)});
    }
    if (!rows.empty()) {
        console.line("");
        console.table(rows);
    }
}

void printDays(const Console &console, const WeatherView &view)
{
    std::vector<std::vector<std::string>> rows;
    for (const auto &day : view.days) {
        const KestCore::LocalDate date{std::chrono::sys_days{std::chrono::days{day.number}}};
        rows.push_back({fmt::format("{} {:>2}", dateText(date).substr(0, 3),
                                    static_cast<unsigned>(date.day())),
                        fmt::format("{} to {}", KestCore::temperatureText(day.low),
                                    KestCore::temperatureText(day.high)),
                        wordsOf(day.code)});
    }
    console.line("");
    console.table(rows);
}

Result<void> runWeather(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto place, placeFor(session, args));
    KEST_TRY(std::string address, service());
    KEST_TRY(const auto transport, Web::openTransport());
    if (isatty(STDERR_FILENO) != 0) {
        warn(KestCore::kUpdatingForecast);
    }
    KestCore::WeatherClient client{*transport, {.service = std::move(address), .log = warn}};
    KEST_TRY(const auto forecast, client.fetch(place.latitude, place.longitude));
    const Base::Instant now = Base::wallClock();
    KEST_TRY(const auto view, KestCore::weatherView(forecast, place.calendar, now));
    KEST_TRY(const auto answer, answerFor(forecast));
    const Console &console = session.console;
    return console.answer(answer, [&] {
        printNow(console, place, view);
        printHours(console, place, view);
        printDays(console, view);
        console.line("");
        console.line(console.styled(KestCore::updatedText(forecast, place.calendar, now) +
                                        " · MET Norway",
                                    Style::faint));
    });
}

} // namespace

void addWeatherCommand(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *weather = program.add_subcommand("weather", "Shows the weather and its forecast");
    CLI::Option *latitude = addNumber(
        weather, "--latitude", [args](double degrees) { args->latitude = degrees; },
        "Degrees, north positive");
    CLI::Option *longitude = addNumber(
        weather, "--longitude", [args](double degrees) { args->longitude = degrees; },
        "Degrees, east positive");
    latitude->needs(longitude);
    longitude->needs(latitude);
    weather->callback([=, &session] {
        session.command = [=, &session] { return runWeather(session, *args); };
    });
}

} // namespace Cli
