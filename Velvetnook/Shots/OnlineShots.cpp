// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Application/Players.h"
#include "Velvetnook/Application/SoundMixer.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"
#include "Velvetnook/Application/ViewModels/SoundMixViewModel.h"
#include "Velvetnook/Application/ViewModels/WeatherViewModel.h"
#include "Velvetnook/Shots/Shot.h"

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QUrl>

#include <fmt/format.h>

#include <array>
#include <chrono>
#include <limits>
#include <thread>

namespace Velvetnook
{

namespace
{

Shot tool(const char *name, const char *view, std::function<void(ShotData &)> prepare,
          std::function<void(App &)> arrange, double later = 0)
{
    const auto prepareOn = [prepare = std::move(prepare)](ShotData &data) {
        for (const char *id : {"weather", "music", "sounds", "revenue", "analytics"}) {
            setToolOn(data.state, id, true);
        }
        if (prepare) {
            prepare(data);
        }
    };
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QLatin1String{view},
            .prepare = prepareOn,
            .arrange = std::move(arrange),
            .later = Base::Seconds{later}};
}

// The network as a picture needs it: every request has this answer.
class CannedTransport : public Base::HttpTransport
{
public:
    using Answer = Base::HttpResult<Base::HttpResponse>;

    explicit CannedTransport(Answer answer) : m_answer(std::move(answer)) {}
    Base::HttpResult<Base::HttpResponse> get(const Base::HttpRequest & /*request*/,
                                             const std::stop_token &stop) override
    {
        while (!m_answer && m_answer.error().kind == Base::HttpFailure::Kind::cancelled &&
               !stop.stop_requested()) {
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
        }
        return m_answer;
    }

private:
    Answer m_answer;
};

std::function<void(App &)> withAnswer(CannedTransport::Answer answer)
{
    return [answer = std::move(answer)](App &app) {
        app.setServices({.openTransport = [answer] {
            return std::unique_ptr<Base::HttpTransport>{
                std::make_unique<CannedTransport>(answer)};
        }});
        app.panel()->setOpen(true);
    };
}

// The forecast that the design's picture shows.
std::string forecast()
{
    constexpr std::array kDegrees{11, 11, 12, 12, 11, 10, 9, 8, 8, 7, 7, 6};
    constexpr std::array kRain{.4, .9, .3, .0, .0, .0, .0, .2, .6, .8, .2, .0};
    std::string entries;
    const double first = Base::seconds1970(kShotTime) - 360; // 13:00
    for (int hour = 0; hour < 7 * 24; ++hour) {
        const auto at = static_cast<std::size_t>(hour % 12);
        const int warmer = hour / 12 % 2 == 0 ? 0 : -4 + hour / 30;
        constexpr std::array kSkies{"partlycloudy_day", "lightrain", "clearsky_day",  "cloudy",
                                    "heavysnow",        "fog",       "rainandthunder"};
        const char *sky =
            hour < 12 ? kSkies[0] : kSkies.at(static_cast<std::size_t>(hour / 24));
        entries += fmt::format(
            R"({}{{"time":"{}","data":{{"instant":{{"details":{{"air_temperature":{},)"
            R"("relative_humidity":78,"wind_speed":5}}}},"next_1_hours":{{"summary":)"
            R"({{"symbol_code":"{}"}},"details":{{"precipitation_amount":{}}}}}}}}})",
            hour == 0 ? "" : ",",
            Base::toIso8601(Base::fromSeconds1970(first + hour * 3600)).value_or(""),
            kDegrees.at(at) + warmer, sky, kRain.at(at));
    }
    return R"({"properties":{"meta":{"updated_at":"2025-11-14T12:58:00Z","units":{)"
           R"("air_temperature":"celsius","relative_humidity":"%","wind_speed":"m/s",)"
           R"("precipitation_amount":"mm"}},"timeseries":[)" +
           entries + "]}}";
}

Base::HttpResponse found(std::string body) { return {.status = 200, .body = std::move(body)}; }

void allowWeather(ShotData &data) { data.state.settings["weather.network"] = "true"; }

void forgetPlace(ShotData &data)
{
    std::erase_if(data.state.settings,
                  [](const auto &setting) { return setting.first.starts_with("prayer."); });
}

std::vector<Shot> weatherShots()
{
    using Kind = Base::HttpFailure::Kind;
    const auto failure = [](Kind kind) {
        return withAnswer(std::unexpected(Base::HttpFailure{.kind = kind, .message = "none"}));
    };
    const auto status = [](int code) { return withAnswer(Base::HttpResponse{.status = code}); };
    return {
        tool("weather", "weather", allowWeather, withAnswer(found(forecast()))),
        tool("weather-stale", "weather", allowWeather, withAnswer(found(forecast())), 50'000),
        tool("weather-past", "weather", allowWeather, withAnswer(found(forecast())), 900'000),
        tool("weather-unset", "weather", forgetPlace, withAnswer(found(forecast()))),
        tool("weather-asks", "weather", {}, withAnswer(found(forecast()))),
        tool("weather-loading", "weather", allowWeather, failure(Kind::cancelled)),
        tool("weather-offline", "weather", allowWeather, failure(Kind::noAnswer)),
        tool("weather-limited", "weather", allowWeather, status(429)),
        tool("weather-error", "weather", allowWeather, status(500)),
        tool("home-weather", "home", allowWeather, withAnswer(found(forecast()))),
        tool("home-weather-asks", "home", {}, withAnswer(found(forecast()))),
    };
}

// Two players that stand still.
class StillPlayers : public Players
{
public:
    StillPlayers(std::vector<MediaPlayers::Player> players, QObject *parent)
        : Players{parent}, m_players{std::move(players)}
    {
    }
    void begin() override { emit changed(); }
    const std::vector<MediaPlayers::Player> &players() const override { return m_players; }
    QString problem() const override { return {}; }
    void read() override { emit changed(); }
    void perform(const MediaPlayers::Player & /*player*/,
                 const MediaPlayers::Action & /*action*/) override
    {
    }

private:
    std::vector<MediaPlayers::Player> m_players;
};

std::function<void(App &)> withPlayers(std::vector<MediaPlayers::Player> players)
{
    return [players = std::move(players)](App &app) {
        app.setServices({.browserTabs =
                             [](std::uint16_t) {
                                 return std::vector<BrowserBridge::BrowserTab>{
                                     {.id = "1",
                                      .title = "Evening on the Estuary",
                                      .url = "https://music.example.org/evening"},
                                     {.id = "2",
                                      .title = "Harbour news",
                                      .url = "https://news.example.org/"}};
                             },
                         .makePlayers = [players](QObject *parent) -> Players * {
                             return new StillPlayers{players, parent};
                         }});
        app.panel()->setOpen(true);
        app.music();
    };
}

// A picture as a player would leave one.
std::string cover()
{
    QImage image{240, 240, QImage::Format_RGB32};
    image.fill(QColor{0x31504B});
    QPainter painter{&image};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    struct Disc {
        QRgb colour;
        int middle;
        int radius;
    };
    for (const auto &[colour, middle, radius] :
         {Disc{0x5D8277, 132, 88}, Disc{0xA9C4A6, 156, 60}, Disc{0xEDE3C4, 184, 34}}) {
        painter.setBrush(QColor{colour});
        painter.drawEllipse(QPoint{120, middle}, radius, radius);
    }
    painter.end();
    const QString path = QDir::temp().filePath(QStringLiteral("velvetnook-shot-cover.png"));
    return image.save(path) ? QUrl::fromLocalFile(path).toString().toStdString()
                            : std::string{};
}

MediaPlayers::Player song()
{
    return {.name = "chromium.instance1",
            .identity = "Chromium",
            .status = MediaPlayers::Player::Status::playing,
            .title = "Evening on the Estuary",
            .artist = "Harbour Quartet",
            .art = cover(),
            .position = 112,
            .duration = 296,
            .volume = 0.64,
            .canSeek = true,
            .canNext = true,
            .canPrevious = true};
}

std::vector<Shot> musicShots()
{
    auto lasting = song();
    lasting.name = "radio";
    lasting.identity = "Radio";
    lasting.status = MediaPlayers::Player::Status::paused;
    lasting.title = "إذاعة القرآن الكريم من القاهرة، تلاوات مختارة لكبار القراء في العالم";
    lasting.artist = "";
    lasting.art = "file:///dev/zero"; // is never read
    lasting.duration = 0;
    lasting.volume = std::numeric_limits<double>::quiet_NaN();
    Shot strip = tool("strip-music", "", {}, withPlayers({song()}));
    strip.surface = QStringLiteral("Strip");
    return {tool("music", "music", {}, withPlayers({song()})),
            tool("music-live", "music", {}, withPlayers({lasting})),
            tool("music-nothing", "music", {}, withPlayers({})), strip};
}

// A keyring of one key, or none.
class CannedSecrets : public Base::SecretStore
{
public:
    explicit CannedSecrets(std::string key) : m_key{std::move(key)} {}
    Base::SecretResult<std::optional<Base::SecretBytes>> read(std::string_view) override
    {
        return m_key.empty() ? std::nullopt
                             : std::optional{Base::SecretBytes{m_key.begin(), m_key.end()}};
    }
    Base::SecretResult<> write(std::string_view, std::span<const std::uint8_t>) override
    {
        return {};
    }
    Base::SecretResult<> erase(std::string_view) override { return {}; }

private:
    std::string m_key;
};

std::function<void(App &)> withAccount(std::string key, CannedTransport::Answer answer)
{
    return [key = std::move(key), answer = std::move(answer)](App &app) {
        app.setServices({.openTransport =
                             [answer] {
                                 return std::unique_ptr<Base::HttpTransport>{
                                     std::make_unique<CannedTransport>(answer)};
                             },
                         .openSecrets =
                             [key](Keyring::Prompts, const std::stop_token &) {
                                 return std::unique_ptr<Base::SecretStore>{
                                     std::make_unique<CannedSecrets>(key)};
                             }});
        app.panel()->setOpen(true);
    };
}

// The balance that the design's picture shows, spread over the days until today.
std::string balance()
{
    std::string entries;
    int number = 0;
    const auto add = [&](std::string_view category, int amount, int fee, int daysAgo,
                         std::string_view currency) {
        const auto now = static_cast<std::int64_t>(Base::seconds1970(Base::wallClock()));
        entries +=
            fmt::format(R"({}{{"id":"txn_{}","amount":{},"fee":{},"currency":"{}","type":"{}",)"
                        R"("reporting_category":"{}","created":{},"description":"Order {}"}})",
                        number == 0 ? "" : ",", number, amount, fee, currency, category,
                        category, now - std::int64_t{86'400} * daysAgo, 1000 + number);
        ++number;
    };
    constexpr std::array kDays{30, 42, 36, 50, 46, 62, 55, 70, 52, 66, 74, 61, 78, 86};
    for (std::size_t at = 0; at < kDays.size(); ++at) {
        add("charge", kDays.at(at) * 576, 1160, 13 - static_cast<int>(at), "eur");
    }
    add("refund", -31'000, 0, 4, "eur");
    add("payout", -390'000, 0, 3, "eur");
    add("charge", 25'000, 900, 2, "usd");
    return R"({"object":"list","has_more":false,"data":[)" + entries + "]}";
}

std::vector<Shot> insightShots()
{
    const std::string key = "rk_test_1";
    const auto status = [&key](int code) {
        return withAccount(key, Base::HttpResponse{.status = code});
    };
    const auto days = [](ShotData &data) {
        data.state.settings["revenue.period"] = "30d";
        data.state.settings["analytics.website"] = "site-1";
    };
    return {tool("insights", "revenue", days, withAccount(key, found(balance()))),
            tool("insights-unset", "revenue", {}, withAccount("", found(""))),
            tool("insights-limited", "revenue", {}, status(429)),
            tool("insights-refused", "analytics", days, status(401)),
            tool("insights-error", "revenue", {}, withAccount(key, found("no report")))};
}

class SilentMixer : public SoundMixer
{
public:
    using SoundMixer::SoundMixer;
    void play(const Gains & /*gains*/, Base::Seconds /*fade*/) override {}
};

std::vector<Shot> soundShots()
{
    const auto mixed = [](ShotData &data) {
        data.state.settings["sounds.mix"] = "rain:0.62,stream:0.28";
        data.state.settings["sounds.volume"] = "0.52";
        data.state.settings["sounds.sleepMinutes"] = "30";
    };
    const auto playing = [](App &app) {
        app.setServices({.makeSoundMixer = [](QObject *parent) -> SoundMixer * {
            return new SilentMixer{parent};
        }});
        app.panel()->setOpen(true);
        app.sounds()->playOrPause();
    };
    return {tool("sounds", "sounds", mixed, playing),
            tool("sounds-paused", "sounds", mixed, {}),
            tool("sounds-none", "sounds", {}, playing)};
}

} // namespace

std::vector<Shot> onlineShots()
{
    std::vector<Shot> all = weatherShots();
    for (const auto &more : {musicShots(), insightShots(), soundShots()}) {
        all.insert(all.end(), more.begin(), more.end());
    }
    return all;
}

} // namespace Velvetnook
