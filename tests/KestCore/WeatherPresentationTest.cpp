// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherPresentation.h"

#include "KestCore/Clients/WeatherPlace.h"
#include "KestCore/Clients/WeatherSymbols.h"

#include <gmock/gmock.h>

#include <cmath>

using Base::Seconds;
using KestCore::Calendar;
using KestCore::WeatherForecast;

namespace
{

constexpr Seconds kHour{3600};

Base::Instant at(const char *text) { return Base::fromIso8601(text).value(); }

Calendar inZone(const char *zone) { return Calendar::inZone(zone).value(); }

// From this instant on, hourly for two days and then every six hours, as the service does. The
// temperature is the number of hours since, so that it tells which sample one looks at.
WeatherForecast forecastFrom(Base::Instant begin)
{
    WeatherForecast forecast{.updated = begin};
    for (int hour = 0; hour < 10 * 24; hour += hour < 48 ? 1 : 6) {
        forecast.samples.push_back({.date = begin + hour * kHour,
                                    .temperature = static_cast<double>(hour),
                                    .code = std::to_string(hour)});
    }
    return forecast;
}

} // namespace

TEST(WeatherView, ShowsNowTheNextHoursAndSevenDays)
{
    // 14:00 in Dhaka, six hours ahead of UTC.
    const auto forecast = forecastFrom(at("2026-11-21T08:00:00Z"));
    const auto view =
        KestCore::weatherView(forecast, inZone("Asia/Dhaka"), at("2026-11-21T10:59:59Z"));
    ASSERT_TRUE(view);
    EXPECT_EQ(view->now.temperature, 2);
    ASSERT_EQ(view->hours.size(), 12U);
    EXPECT_EQ(view->hours.front().temperature, 3);
    EXPECT_EQ(view->hours.back().temperature, 14);

    ASSERT_EQ(view->days.size(), 7U);
    const auto &today = view->days[0];
    EXPECT_EQ(today.number, inZone("Asia/Dhaka").dayNumber(at("2026-11-21T12:00:00Z")));
    EXPECT_EQ(today.low, 2) << "what is over does not count";
    EXPECT_EQ(today.high, 9) << "until midnight there, not here";
    EXPECT_EQ(today.code, "2") << "what is left that is nearest to noon";
    const auto &tomorrow = view->days[1];
    EXPECT_EQ(tomorrow.number, today.number + 1);
    EXPECT_EQ(tomorrow.low, 10);
    EXPECT_EQ(tomorrow.high, 33);
    EXPECT_EQ(tomorrow.code, "22") << "noon there";
    EXPECT_EQ(view->days[6].number, today.number + 6);
}

TEST(WeatherView, KeepsToTheCalendarOfThePlaceWhereADayHas25Hours)
{
    // Clocks go back in London at 01:00 UTC on 25 October 2026.
    const auto forecast = forecastFrom(at("2026-10-24T23:00:00Z"));
    const auto view =
        KestCore::weatherView(forecast, inZone("Europe/London"), at("2026-10-24T23:00:00Z"));
    ASSERT_TRUE(view);
    EXPECT_EQ(view->days[0].low, 0);
    EXPECT_EQ(view->days[0].high, 24);
    EXPECT_EQ(view->days[0].code, "13");
}

TEST(WeatherView, SaysWhenTheForecastTellsNothingOfNow)
{
    const auto begin = at("2026-11-21T08:00:00Z");
    const auto forecast = forecastFrom(begin);
    const auto last = forecast.samples.back().date;
    struct Case {
        Base::Instant now;
        std::optional<double> shown;
    };
    for (const auto &[now, shown] : {
             Case{begin - 6 * kHour, std::nullopt},
             Case{begin - 5 * kHour, 0},
             Case{begin, 0},
             Case{begin + kHour, 1},
             Case{last + 5 * kHour, forecast.samples.back().temperature},
             Case{last + 6 * kHour, std::nullopt},
         }) {
        SCOPED_TRACE(Base::toIso8601(now).value());
        const auto view = KestCore::weatherView(forecast, inZone("Etc/UTC"), now);
        ASSERT_EQ(view.has_value(), shown.has_value());
        if (view) {
            EXPECT_EQ(view->now.temperature, shown);
        } else {
            EXPECT_EQ(view.error().message,
                      "Forecast is out of date. Please try again shortly.");
        }
    }
    EXPECT_FALSE(KestCore::weatherView({}, inZone("Etc/UTC"), begin));
}

TEST(WeatherTexts, RoundAndSayWhatIsMissing)
{
    EXPECT_EQ(KestCore::temperatureText(-0.4), "0°");
    EXPECT_EQ(KestCore::temperatureText(-0.6), "-1°");
    EXPECT_EQ(KestCore::temperatureText(21.5), "22°");
    EXPECT_EQ(KestCore::rainText(0.25), "0.2 mm next hour");
    EXPECT_EQ(KestCore::rainText(std::nullopt), "Rain unavailable");
    EXPECT_EQ(KestCore::windText(35.6), "36 km/h");
    EXPECT_EQ(KestCore::windText(std::nullopt), "Wind unavailable");

    const WeatherForecast forecast{.updated = at("2026-11-21T08:05:00Z")};
    const auto text = [&](double hours) {
        return KestCore::updatedText(forecast, inZone("Asia/Dhaka"),
                                     forecast.updated + hours * kHour);
    };
    EXPECT_EQ(text(12), "Forecast updated 21 Nov, 14:05");
    EXPECT_EQ(text(12.1), "Previous forecast · 21 Nov, 14:05");
}

// The service's own list of codes.
TEST(WeatherSymbols, KnowEveryCodeOfTheService)
{
    std::vector<std::string> codes{"clearsky", "cloudy", "fair", "fog", "partlycloudy"};
    for (const std::string kind : {"rain", "sleet", "snow"}) {
        for (const std::string strength : {"light", "", "heavy"}) {
            for (const std::string form : {"", "showers"}) {
                const bool isOdd = strength == "light" && form == "showers" && kind != "rain";
                codes.push_back(strength + kind + form);
                codes.push_back(strength + (isOdd ? "s" : "") + kind + form + "andthunder");
            }
        }
    }
    ASSERT_EQ(codes.size(), 41U);
    for (const std::string &code : codes) {
        for (const char *part : {"", "_day", "_night", "_polartwilight"}) {
            const auto symbol = KestCore::weatherSymbol(code + part);
            EXPECT_NE(symbol.words, "Unknown sky") << code << part;
            EXPECT_EQ(symbol.icon == "weather-storm", code.ends_with("thunder")) << code;
        }
    }
}

TEST(WeatherSymbols, TellDayFromNight)
{
    struct Case {
        const char *code;
        const char *words;
        const char *icon;
    };
    for (const auto &[code, words, icon] : {
             Case{"clearsky_day", "Clear sky", "weather-clear"},
             Case{"clearsky_night", "Clear sky", "weather-clear-night"},
             Case{"clearsky_polartwilight", "Clear sky", "weather-clear-night"},
             Case{"partlycloudy_night", "Partly cloudy", "weather-few-clouds-night"},
             Case{"cloudy", "Cloudy", "weather-overcast"},
             Case{"lightrainshowers_night", "Light rain showers", "weather-showers-scattered"},
             Case{"heavysnow", "Heavy snow", "weather-snow"},
             Case{"rain_noon", "Unknown sky", "weather-overcast"},
             Case{"_day", "Unknown sky", "weather-overcast"},
             Case{"", "Unknown sky", "weather-overcast"},
         }) {
        const auto symbol = KestCore::weatherSymbol(code);
        EXPECT_EQ(symbol.words, words) << code;
        EXPECT_EQ(symbol.icon, icon) << code;
    }
}

TEST(WeatherPlace, IsTheWeathersOwnElseThePrayers)
{
    using Settings = KestCore::Settings;
    const Settings prayer{{"prayer.latitude", "30.06"},
                          {"prayer.longitude", "31.25"},
                          {"prayer.timezone", "Africa/Cairo"},
                          {"prayer.city", "Cairo"}};
    Settings both = prayer;
    both.insert({{"weather.latitude", "23.7"},
                 {"weather.longitude", "90.4"},
                 {"weather.timezone", "Asia/Dhaka"},
                 {"weather.city", "Dhaka"}});
    const auto place = KestCore::weatherPlace(both);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->latitude, 23.7);
    EXPECT_EQ(place->longitude, 90.4);
    EXPECT_EQ(place->name, "Dhaka");
    EXPECT_EQ(place->calendar.at(at("2026-11-21T08:00:00Z")).hour, 14);

    EXPECT_EQ(KestCore::weatherPlace(prayer)->name, "Cairo");
    EXPECT_EQ(KestCore::weatherPlace(prayer)->calendar.at(at("2026-11-21T08:00:00Z")).hour, 10);

    both["weather.latitude"] = "north";
    EXPECT_TRUE(std::isnan(KestCore::weatherPlace(both)->latitude)) << "not quietly Cairo";
    both["weather.latitude"] = "";
    EXPECT_TRUE(std::isnan(KestCore::weatherPlace(both)->latitude));

    const auto none = KestCore::weatherPlace({{"weather.city", "Dhaka"}});
    ASSERT_FALSE(none);
    EXPECT_EQ(none.error().message, "Choose a city or use your location.");
}
