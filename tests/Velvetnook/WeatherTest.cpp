// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "RunningModel.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/WeatherViewModel.h"
#include "tests/ForecastDocument.h"
#include "tests/WebServer.h"

#include <atomic>

using namespace Velvetnook;

namespace
{

// A forecast of the hours from now on, that the client may not keep.
WebReply forecastOf(double degrees, std::string_view expires = "Thu, 01 Jan 1970 00:00:00 GMT")
{
    std::string entries;
    for (int hour = 0; hour < 30; ++hour) {
        entries += (hour == 0 ? "" : ",") +
                   forecastEntry(RunningModel::kStart + Base::Seconds{hour * 3600.0 - 360},
                                 degrees + hour);
    }
    return {.headers = {{"Expires", std::string{expires}}},
            .body = forecastDocument(entries, kForecastUnits, R"("2025-11-14T12:58:00Z")")};
}

class Weather
{
public:
    explicit Weather(bool isAllowed = true)
        : m_running{[isAllowed](KestCore::NativeState &state) {
              state.settings["prayer.latitude"] = "51.5074";
              state.settings["prayer.longitude"] = "-0.1278";
              state.settings["prayer.timezone"] = "Europe/London";
              state.settings["weather.network"] = isAllowed ? "true" : "";
          }}
    {
        setenv("KEST_WEATHER_URL", server.url().c_str(), 1);
        server.on(kForecastPath, forecastOf(11));
        m_view.emplace(m_running.model(), m_running.formatting(),
                       std::make_shared<const ToolServices>(
                           ToolServices{.openTransport = [] { return Web::openTransport(); }}));
    }

    WeatherViewModel &view() { return *m_view; }
    RunningModel &running() { return m_running; }
    void destroyView() { m_view.reset(); }
    std::string availability() { return view().availability().toStdString(); }
    // Shown until an answer has come.
    void show()
    {
        view().setShown(true);
        answer();
    }
    void answer()
    {
        m_running.settle();
        EXPECT_TRUE(RunningModel::waitUntil([this] { return !view().isLoading(); }));
    }

    WebServer server;

private:
    RunningModel m_running;
    std::optional<WeatherViewModel> m_view;
};

} // namespace

TEST(WeatherView, AsksNobodyBeforeTheUserHasAllowedItOrWhileNobodyLooks)
{
    Weather weather{false};
    weather.show();
    weather.running().pass(Base::Seconds{7200});
    EXPECT_EQ(weather.availability(), "permissionDenied");
    EXPECT_EQ(weather.server.requests().size(), 0U);
    weather.view().setShown(false);
    weather.view().setAllowed(true);
    weather.running().settle();
    weather.running().pass(Base::Seconds{7200});
    EXPECT_EQ(weather.server.requests().size(), 0U);
    weather.show();
    EXPECT_EQ(weather.availability(), "ready");
    ASSERT_EQ(weather.server.requests().size(), 1U);
    EXPECT_EQ(weather.server.requests().front().query, "lat=51.51&lon=-0.13");
    weather.view().setShown(false);
    weather.running().pass(Base::Seconds{3 * 3600});
    EXPECT_EQ(weather.server.requests().size(), 1U);
}

TEST(WeatherView, ForgetsTheForecastAndAsksNobodyOnceItIsNotAllowedAnyMore)
{
    Weather weather;
    weather.show();
    ASSERT_TRUE(weather.view().hasForecast());
    weather.view().setAllowed(false);
    weather.running().settle();
    EXPECT_EQ(weather.availability(), "permissionDenied");
    EXPECT_FALSE(weather.view().hasForecast());
    EXPECT_FALSE(weather.view().isAllowed());
    weather.running().pass(Base::Seconds{7200});
    weather.view().refresh();
    EXPECT_EQ(weather.server.requests().size(), 1U);

    weather.view().setAllowed(true); // while the view is seen
    weather.running().settle();
    weather.running().pass(Base::Seconds{1});
    weather.answer();
    EXPECT_EQ(weather.server.requests().size(), 2U);
    EXPECT_EQ(weather.availability(), "ready");
}

TEST(WeatherView, GoesOnWithTheHoursOfAForecastWhileItIsSeen)
{
    Weather weather;
    weather.show();
    EXPECT_EQ(weather.view().temperature(), u"11°");
    EXPECT_EQ(weather.view().hours().size(), 12);
    EXPECT_EQ(weather.view().rain(), u"0.3 mm next hour"); // 0.25 of the document, rounded
    EXPECT_EQ(weather.view().wind(), u"36 km/h");
    weather.running().pass(Base::Seconds{3600});
    EXPECT_EQ(weather.view().temperature(), u"12°");
    weather.answer(); // and a quarter of an hour is over, so the service was asked again
    EXPECT_EQ(weather.server.requests().size(), 2U);
}

TEST(WeatherView, KeepsAnOldForecastAndSaysSoWhenTheServiceFails)
{
    struct Case {
        const char *name;
        WebReply reply;
        const char *message;
        bool canRefresh;
    };
    for (const auto &[name, reply, message, canRefresh] : {
             Case{"a fault", {.status = 503}, "temporarily unavailable", true},
             Case{"no answer", {.way = WebReply::Way::dropped}, "did not respond", true},
             Case{"too often", {.status = 429}, "Weather is busy", false},
             Case{"no document", {.body = "<html>"}, "", true},
         }) {
        SCOPED_TRACE(name);
        Weather weather;
        weather.show();
        weather.server.on(kForecastPath, reply);
        weather.view().refresh();
        weather.answer();
        EXPECT_EQ(weather.availability(), "stale");
        EXPECT_EQ(weather.view().temperature(), u"11°");
        EXPECT_TRUE(weather.view().footer().startsWith(u"Previous forecast · 12:58 · "));
        EXPECT_TRUE(weather.view().footer().contains(QLatin1String{message}));
        EXPECT_EQ(weather.view().canRefresh(), canRefresh);
    }
}

TEST(WeatherView, NamesEveryReasonForHavingNothing)
{
    struct Case {
        WebReply reply;
        const char *availability;
    };
    for (const auto &[reply, availability] : {
             Case{{.status = 503}, "error"},
             Case{{.way = WebReply::Way::dropped}, "offline"},
             Case{{.status = 429}, "rateLimited"},
             Case{{.body = forecastDocument("")}, "error"},
         }) {
        SCOPED_TRACE(availability);
        Weather weather;
        weather.server.on(kForecastPath, reply);
        weather.show();
        EXPECT_EQ(weather.availability(), availability);
        EXPECT_FALSE(weather.view().hasForecast());
        EXPECT_TRUE(weather.view().temperature().isEmpty());
        EXPECT_FALSE(weather.view().message().isEmpty());
    }
}

TEST(WeatherView, AForecastThatSaysNothingOfNowIsNotShownAsNow)
{
    Weather weather;
    weather.show();
    weather.server.on(kForecastPath, WebReply{.status = 503});
    weather.running().pass(Base::Seconds{40 * 3600});
    weather.answer();
    EXPECT_EQ(weather.availability(), "stale");
    EXPECT_FALSE(weather.view().hasForecast());
    EXPECT_FALSE(weather.view().message().isEmpty());
}

TEST(WeatherView, AnAnswerForThePlaceBeforeIsNotTakenForTheNewOne)
{
    Weather weather;
    std::atomic<int> count{0};
    weather.server.on(kForecastPath, [&count](const WebRequest &request) {
        ++count;
        WebReply reply = forecastOf(request.query.starts_with("lat=51") ? 11 : 30);
        reply.delay = std::chrono::milliseconds{300};
        return reply;
    });
    weather.view().setShown(true);
    weather.running().settle();
    ASSERT_TRUE(weather.server.waitForRequests(1));
    weather.running().change([](KestCore::NativeState &state) {
        state.settings["weather.latitude"] = "30.0444";
        state.settings["weather.longitude"] = "31.2357";
        state.settings["weather.city"] = "Cairo";
    });
    EXPECT_TRUE(RunningModel::waitUntil([&] { return weather.view().hasForecast(); }));
    EXPECT_EQ(weather.view().temperature(), u"30°");
    EXPECT_EQ(weather.view().place(), u"Cairo");
    EXPECT_EQ(count, 2);
}

TEST(WeatherView, EndsWhileTheServiceIsSilent)
{
    Weather weather;
    weather.server.on(kForecastPath, WebReply{.way = WebReply::Way::silent});
    weather.view().setShown(true);
    weather.running().settle();
    ASSERT_TRUE(weather.server.waitForRequests(1));
    weather.destroyView(); // would wait for a minute if the request were not stopped
    weather.running().settle();
}

TEST(WeatherView, APlaceOfItsOwnComesAndGoes)
{
    Weather weather;
    weather.view().places()->search(QStringLiteral("cairo"));
    ASSERT_FALSE(weather.view().places()->found().isEmpty());
    weather.view().places()->choose(99); // there is no such one
    weather.view().places()->choose(0);
    weather.running().settle();
    EXPECT_EQ(weather.view().place(), u"Cairo");
    EXPECT_EQ(weather.running().state().settings.at("prayer.latitude"), "51.5074");
    weather.view().places()->followPrayer();
    weather.running().settle();
    EXPECT_FALSE(weather.view().places()->hasOwn());
    EXPECT_EQ(weather.view().place(), u"Here");
}
