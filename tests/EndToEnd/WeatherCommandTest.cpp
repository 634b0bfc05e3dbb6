// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/EndToEnd/Program.h"
#include "tests/ForecastDocument.h"
#include "tests/TemporaryFolder.h"
#include "tests/WebServer.h"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

// kest, its data, and the service that it asks.
class WeatherCommand : public testing::Test
{
protected:
    WeatherCommand() { setService(m_server.url()); }
    void TearDown() override
    {
        unsetenv("KEST_WEATHER_URL");
        unsetenv("KEST_CA_FILE");
    }

    static void setService(const std::string &url)
    {
        setenv("KEST_WEATHER_URL", url.c_str(), 1);
    }
    void set(const char *key, const char *value)
    {
        ASSERT_EQ(runKest(m_folder.path(), {"settings", "set", key, value}).status, 0);
    }
    Outcome weather(std::vector<std::string> words = {})
    {
        words.insert(words.begin(), "weather");
        return runKest(m_folder.path(), std::move(words));
    }

    TemporaryFolder m_folder;
    WebServer m_server;
};

// From now on, and so for the hour to come.
std::string documentOfNow()
{
    const double begin = std::floor(Base::seconds1970(Base::wallClock()));
    std::string entries;
    for (int hour = 0; hour < 3; ++hour) {
        entries.append(entries.empty() ? "" : ",")
            .append(forecastEntry(Base::fromSeconds1970(begin + hour * 3600), 20 + hour));
    }
    const std::string now = Base::toIso8601(Base::fromSeconds1970(begin)).value();
    return forecastDocument(entries, kForecastUnits, "\"" + now + "\"");
}

} // namespace

TEST_F(WeatherCommand, ShowsTheWeatherOfThePlaceThatIsSet)
{
    m_server.on(kForecastPath, {.body = documentOfNow()});
    set("prayer.latitude", "30.06");
    set("prayer.longitude", "31.25");
    set("prayer.city", "Cairo");
    const auto shown = weather();
    EXPECT_EQ(shown.err, "");
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(
        shown.out,
        AllOf(StartsWith("Cairo\n20° Fair · Humidity 50 % · 36 km/h · 0.2 mm next hour\n"),
              HasSubstr("21°  36 km/h  0.2 mm  Fair\n"), HasSubstr("\n\nForecast updated "),
              EndsWith(" · MET Norway\n")));

    set("weather.latitude", "23.7");
    set("weather.longitude", "90.4");
    EXPECT_THAT(weather().out, Not(HasSubstr("Cairo")));
    EXPECT_EQ(weather({"--latitude", "-33.9", "--longitude", "18.4"}).status, 0);
    std::vector<std::string> queries;
    for (const WebRequest &request : m_server.requests()) {
        queries.push_back(request.query);
    }
    EXPECT_THAT(queries, testing::ElementsAre("lat=30.06&lon=31.25", "lat=23.70&lon=90.40",
                                              "lat=-33.90&lon=18.40"));
}

TEST_F(WeatherCommand, AnswersWithTheForecastAsJson)
{
    const auto now = Base::wallClock();
    const auto second = Base::fromSeconds1970(std::floor(Base::seconds1970(now)));
    m_server.on(kForecastPath,
                {.status = 203, .body = forecastDocument(forecastEntry(second, 20.5))});
    const auto answer = weather({"--latitude", "1", "--longitude", "2", "--json"});
    EXPECT_EQ(answer.out, R"({"updated":"2026-11-21T11:35:12Z","samples":[{"date":")" +
                              Base::toIso8601(second).value() +
                              R"(","temperature":20.5,"humidity":50,"wind":36,"rain":0.25,)"
                              R"("code":"fair_day"}]})"
                              "\n");
    EXPECT_THAT(answer.err, AllOf(StartsWith("kest: Weather: "), HasSubstr("203")));
    EXPECT_EQ(answer.status, 0);
}

TEST_F(WeatherCommand, SaysWhyThereIsNone)
{
    EXPECT_EQ(weather().err, "kest: Choose a city or use your location.\n");
    EXPECT_EQ(weather({"--latitude", "1"}).status, kWrongUsage);
    EXPECT_EQ(weather({"--latitude", "north", "--longitude", "1"}).status, kWrongUsage);
    EXPECT_TRUE(m_server.requests().empty());

    const std::string longAgo = forecastEntry(Base::fromSeconds1970(1e9), 20);
    struct Case {
        WebReply reply;
        const char *latitude;
        const char *message;
    };
    for (const auto &[reply, latitude, message] : {
             Case{{}, "91", "Choose a valid location"},
             Case{{.body = forecastDocument(longAgo)},
                  "1",
                  "Forecast is out of date. Please try again shortly."},
             Case{{.status = 500},
                  "1",
                  "Weather is temporarily unavailable. Please try again shortly."},
             Case{{.status = 429}, "1", "Weather is busy. Please try again in a few minutes."},
             Case{{.way = WebReply::Way::dropped},
                  "1",
                  "Weather did not respond. Try again shortly."},
         }) {
        m_server.on(kForecastPath, reply);
        const auto refused = weather({"--latitude", latitude, "--longitude", "2", "--json"});
        EXPECT_THAT(refused.err, EndsWith("kest: " + std::string{message} + "\n"));
        EXPECT_EQ(refused.out, "");
        EXPECT_EQ(refused.status, kRefused);
    }
}

TEST_F(WeatherCommand, AsksNobodyInTheClearAndNobodyItCannotTrust)
{
    WebServer secure{WebServer::Security::tls};
    secure.on(kForecastPath, {.body = documentOfNow()});
    const std::vector<std::string> place{"--latitude", "1", "--longitude", "2"};
    setService("http://example.invalid");
    EXPECT_EQ(weather(place).err, "kest: KEST_WEATHER_URL must be https:// and a host name.\n");
    setService(secure.url());
    EXPECT_EQ(weather(place).status, kRefused);
    EXPECT_TRUE(secure.requests().empty());
    setenv("KEST_CA_FILE", secure.authorityFile().c_str(), 1);
    EXPECT_EQ(weather(place).status, 0);
}
