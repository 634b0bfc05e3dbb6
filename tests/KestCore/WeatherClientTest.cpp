// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/WeatherClient.h"

#include "Base/Serial.h"
#include "HttpTransport/HttpTransport.h"
#include "tests/ForecastDocument.h"
#include "tests/WebServer.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <limits>
#include <thread>

using testing::ElementsAre;
using testing::HasSubstr;
using Way = WebReply::Way;

namespace
{

const Base::Instant kNow = Base::fromIso8601("2026-11-21T12:00:00Z").value();
constexpr const char *kUnavailable =
    "Weather is temporarily unavailable. Please try again shortly.";
constexpr const char *kNoAnswer = "Weather did not respond. Try again shortly.";
constexpr const char *kBusy = "Weather is busy. Please try again in a few minutes.";
constexpr const char *kBreak = "Weather is taking a break. Please try again in a few minutes.";

std::string documentOf(double temperature)
{
    return forecastDocument(forecastEntry(kNow, temperature));
}

WebReply forecastOf(double temperature, std::vector<Base::HttpHeader> headers = {})
{
    return {.headers = std::move(headers), .body = documentOf(temperature)};
}

// A client whose clock the test sets, and the service that it asks.
class Weather : public testing::Test
{
protected:
    void answer(WebReply reply) { m_server.on(kForecastPath, std::move(reply)); }

    // The temperature of the answer, or its message.
    std::string fetch(double latitude = 30.06, double longitude = 31.25)
    {
        const auto forecast = m_client.fetch(latitude, longitude);
        return forecast ? fmt::format("{}", forecast->samples.at(0).temperature)
                        : forecast.error().message;
    }
    std::size_t requestCount() const { return m_server.requests().size(); }
    std::string sinceOfLast() const
    {
        return m_server.requests().back().header("If-Modified-Since");
    }

    WebServer m_server;
    Base::Instant m_now = kNow;
    std::vector<std::string> m_log;
    std::unique_ptr<Base::HttpTransport> m_transport = Web::openTransport({}).value();
    KestCore::WeatherClient m_client{
        *m_transport,
        {.service = m_server.url("/"),
         .clock = [this] { return m_now; },
         .log = [this](std::string_view line) { m_log.emplace_back(line); }}};
};

} // namespace

// As the application keeps it: on a queue of its own.
TEST_F(Weather, AnswersTwoWhoAskAtOnceFromOneRequest)
{
    answer(forecastOf(20));
    Base::Serial<KestCore::WeatherClient> client{
        KestCore::WeatherClient{*m_transport, {.service = m_server.url("/")}}};
    const auto ask = [&] {
        return client.ask(
            [](KestCore::WeatherClient &weather) { return weather.fetch(30.06, 31.25); });
    };
    auto first = ask();
    auto second = ask();
    EXPECT_TRUE(first.get());
    EXPECT_TRUE(second.get());
    EXPECT_EQ(requestCount(), 1U);
}

TEST_F(Weather, AsksByTheServicesRules)
{
    answer(forecastOf(20));
    EXPECT_EQ(fetch(51.501, -0.1278), "20");
    const auto requests = m_server.requests();
    ASSERT_EQ(requests.size(), 1U);
    EXPECT_EQ(requests[0].path, kForecastPath);
    EXPECT_EQ(requests[0].query, "lat=51.50&lon=-0.13");
    EXPECT_EQ(requests[0].header("User-Agent"),
              "Velvetnook/1.0 (+" + std::string{KestCore::kProductAddress} + ")");
    EXPECT_EQ(requests[0].header("If-Modified-Since"), "");
}

TEST_F(Weather, RefusesAPlaceThatIsNone)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    for (const auto &[latitude, longitude] :
         std::initializer_list<std::pair<double, double>>{{90.1, 0},
                                                          {-90.1, 0},
                                                          {0, 180.1},
                                                          {0, -180.1},
                                                          {nan, 0},
                                                          {0, nan},
                                                          {infinity, 0},
                                                          {0, -infinity}}) {
        EXPECT_EQ(fetch(latitude, longitude), "Choose a valid location");
    }
    EXPECT_EQ(requestCount(), 0U);
    answer(forecastOf(-40));
    EXPECT_EQ(fetch(-90, 180), "-40");
}

TEST_F(Weather, SaysWhatBecameOfEveryAnswer)
{
    const std::string largest =
        documentOf(20) + std::string(1'999'999 - documentOf(20).size(), ' ');
    struct Case {
        const char *name;
        WebReply reply;
        std::string result;
    };
    std::vector<Case> cases{
        {"200", forecastOf(20), "20"},
        {"203", {.status = 203, .body = documentOf(20)}, "20"},
        {"gzip",
         {.headers = {{"Content-Encoding", "gzip"}}, .body = gzip(documentOf(20))},
         "20"},
        {"the largest body", {.body = largest}, "20"},
        {"a larger one", {.body = largest + " "}, kUnavailable},
        {"a gzip bomb",
         {.headers = {{"Content-Encoding", "gzip"}}, .body = gzip(std::string(8'000'000, ' '))},
         kUnavailable},
        {"endless", {.body = std::string(65'536, ' '), .way = Way::endless}, kUnavailable},
        {"304 without a memory", {.status = 304}, kUnavailable},
        {"units",
         {.body = forecastDocument(forecastEntry(kNow, 1), "{}")},
         "Unsupported forecast units or date"},
        {"no samples",
         {.body = forecastDocument("")},
         "Forecast contains no usable temperatures"},
        {"dropped", {.way = Way::dropped}, kNoAnswer},
        {"truncated", {.body = documentOf(20), .way = Way::truncated}, kNoAnswer},
        {"wrong length", {.body = documentOf(20), .contentLength = "99999"}, kNoAnswer},
        {"bad gzip",
         {.headers = {{"Content-Encoding", "gzip"}}, .body = documentOf(20)},
         kNoAnswer},
        {"redirect away",
         {.status = 302, .headers = {{"Location", "http://example.invalid/"}}},
         kNoAnswer},
        {"429", {.status = 429, .body = std::string(3'000'000, ' ')}, kBusy},
    };
    for (const int status : {201, 204, 400, 401, 403, 404, 500, 503}) {
        cases.push_back({"status", {.status = status, .body = documentOf(20)}, kUnavailable});
    }
    for (const auto &[name, reply, result] : cases) {
        SCOPED_TRACE(name);
        SCOPED_TRACE(reply.status);
        answer(reply);
        KestCore::WeatherClient fresh{*m_transport, {.service = m_server.url()}};
        const auto forecast = fresh.fetch(30, 31);
        EXPECT_EQ(forecast ? fmt::format("{}", forecast->samples.at(0).temperature)
                           : forecast.error().message,
                  result);
    }
    EXPECT_LT(m_server.bytesSent(), 30'000'000U) << "an endless body stops at the cap";
}

TEST_F(Weather, KeepsAnAnswerUntilItExpires)
{
    answer(forecastOf(20, {{"Expires", "Sat, 21 Nov 2026 12:30:00 GMT"}}));
    EXPECT_EQ(fetch(51.501, 0), "20");
    answer(forecastOf(25));
    EXPECT_EQ(fetch(51.504, 0), "20") << "the same hundredth of a degree";
    EXPECT_EQ(fetch(51.506, 0), "25") << "another";
    m_now = kNow + Base::Seconds{1799};
    EXPECT_EQ(fetch(51.501, 0), "20");
    m_now = kNow + Base::Seconds{1800};
    EXPECT_EQ(fetch(51.501, 0), "25");
    EXPECT_EQ(requestCount(), 3U);
}

TEST_F(Weather, KeepsAnAnswerFor900SecondsWhenItDoesNotSay)
{
    for (const char *expires : {"", "0", "tomorrow"}) {
        SCOPED_TRACE(expires);
        answer(forecastOf(20, {{"Expires", expires}}));
        EXPECT_EQ(fetch(), "20");
        const std::size_t count = requestCount();
        m_now += Base::Seconds{899};
        EXPECT_EQ(fetch(), "20");
        EXPECT_EQ(requestCount(), count);
        m_now += Base::Seconds{1};
        EXPECT_EQ(fetch(), "20");
        EXPECT_EQ(requestCount(), count + 1);
        m_now += Base::Seconds{900};
    }
}

TEST_F(Weather, AsksWhetherSomethingChangedAndBelievesThatNothingDid)
{
    constexpr const char *kModified = "Sat, 21 Nov 2026 11:00:00 GMT, odd as it is";
    answer(forecastOf(20, {{"Last-Modified", kModified}}));
    EXPECT_EQ(fetch(), "20");
    m_now += Base::Seconds{900};
    answer({.status = 304, .headers = {{"Expires", "Sat, 21 Nov 2026 13:00:00 GMT"}}});
    EXPECT_EQ(fetch(), "20");
    EXPECT_EQ(sinceOfLast(), kModified);
    m_now = kNow + Base::Seconds{3599};
    EXPECT_EQ(fetch(), "20");
    EXPECT_EQ(requestCount(), 2U) << "a 304 makes it good for longer";
    m_now = kNow + Base::Seconds{3600};
    answer(forecastOf(25));
    EXPECT_EQ(fetch(), "25");
    EXPECT_EQ(sinceOfLast(), kModified) << "kept through the 304";
    m_now += Base::Seconds{900};
    EXPECT_EQ(fetch(), "25");
    EXPECT_EQ(sinceOfLast(), "") << "the new answer had no date";
}

TEST_F(Weather, KeepsWhatItKnowsThroughFailures)
{
    answer(forecastOf(20, {{"Last-Modified", "then"}}));
    EXPECT_EQ(fetch(), "20");
    m_now += Base::Seconds{900};
    for (const WebReply &reply : {
             WebReply{.status = 500},
             WebReply{.body = "{}"},
             WebReply{.headers = {{"Last-Modified", "now"}}, .body = forecastDocument("")},
             WebReply{.way = Way::dropped},
         }) {
        answer(reply);
        EXPECT_THAT(fetch(), testing::Not("20"));
    }
    answer({.status = 304});
    EXPECT_EQ(fetch(), "20");
    EXPECT_EQ(sinceOfLast(), "then");
}

TEST_F(Weather, TakesTheBreakThatTheServiceAsksFor)
{
    struct Case {
        const char *retryAfter; // null: no such header
        double seconds;
    };
    for (const auto &[retryAfter, seconds] : {
             Case{"30", 600},
             Case{"600", 600},
             Case{"700.5", 700.5},
             Case{" 3600 ", 3600},
             Case{"100000", 86'400},
             Case{"1e300", 86'400},
             Case{"-5", 600},
             Case{"inf", 600},
             Case{"nan", 600},
             Case{"Sat, 21 Nov 2026 18:00:00 GMT", 600},
             Case{"", 600},
             Case{nullptr, 600},
         }) {
        SCOPED_TRACE(retryAfter == nullptr ? "none" : retryAfter);
        WebReply tooMany{.status = 429};
        if (retryAfter != nullptr) {
            tooMany.headers.push_back({"Retry-After", retryAfter});
        }
        answer(tooMany);
        m_now += Base::Seconds{100'000};
        EXPECT_EQ(fetch(), kBusy);
        const std::size_t count = requestCount();
        m_now += Base::Seconds{seconds - 0.25};
        EXPECT_EQ(fetch(10, 10), kBreak) << "for every place";
        EXPECT_EQ(requestCount(), count);
        m_now += Base::Seconds{0.25};
        EXPECT_EQ(fetch(), kBusy);
        EXPECT_EQ(requestCount(), count + 1);
    }
}

TEST_F(Weather, GivesWhatItKnowsDuringABreak)
{
    answer(forecastOf(20));
    EXPECT_EQ(fetch(1, 1), "20");
    answer({.status = 429});
    EXPECT_EQ(fetch(2, 2), kBusy);
    EXPECT_EQ(fetch(1, 1), "20");
    EXPECT_EQ(fetch(2, 2), kBreak);
}

TEST_F(Weather, LogsAnAnswerThatForetellsTheEnd)
{
    answer(forecastOf(20));
    fetch(1, 1);
    EXPECT_THAT(m_log, ElementsAre());
    answer({.status = 203, .body = documentOf(21)});
    EXPECT_EQ(fetch(2, 2), "21");
    EXPECT_THAT(m_log, ElementsAre(HasSubstr("203")));
}

TEST_F(Weather, CanBeStopped)
{
    answer({.way = Way::silent});
    std::stop_source stop;
    const std::jthread stopper{[&] {
        m_server.waitForRequests(1);
        stop.request_stop();
    }};
    const auto forecast = m_client.fetch(30, 31, stop.get_token());
    ASSERT_FALSE(forecast);
    EXPECT_EQ(forecast.error().message, kNoAnswer);
}

TEST(WeatherRequest, IsGivenAMinuteAndNoMoreRoomThanABodyMayHave)
{
    struct Recorder : Base::HttpTransport {
        Base::HttpRequest last;
        Base::HttpResult<Base::HttpResponse> get(const Base::HttpRequest &request,
                                                 const std::stop_token &) override
        {
            last = request;
            return Base::HttpResponse{.status = 500};
        }
    };
    Recorder recorder;
    KestCore::WeatherClient client{recorder, {}};
    EXPECT_FALSE(client.fetch(1, 2));
    EXPECT_EQ(recorder.last.url,
              "https://api.met.no/weatherapi/locationforecast/2.0/compact?lat=1.00&lon=2.00");
    EXPECT_EQ(recorder.last.timeout, Base::Seconds{60});
    EXPECT_EQ(recorder.last.mostBytes, 1'999'999U);
}
