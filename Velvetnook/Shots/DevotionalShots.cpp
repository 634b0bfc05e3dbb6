// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "KestCore/Devotional/Content.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

namespace
{

using KestCore::SessionRecord;

Shot shot(const QString &name, const QString &view,
          const std::function<void(ShotData &)> &prepare = {},
          const std::function<void(App &)> &arrange = {})
{
    return {.name = name,
            .surface = QStringLiteral("Panel"),
            .view = view,
            .prepare = prepare,
            .arrange = arrange};
}

SessionRecord finished(double minutesAgo, const char *phrase, std::int64_t count,
                       std::optional<std::int64_t> target)
{
    return {.id = "shot",
            .dhikrId = phrase,
            .count = count,
            .target = target,
            .endedAt = Base::milliseconds1970(kShotTime) - minutesAgo * 60'000};
}

void fillHistory(ShotData &data)
{
    constexpr double kDay = 1'440;
    data.state.devotional.records = Base::SharedList<SessionRecord>{{
        finished(20 * kDay, "la-hawla", 100, 100),
        finished(6 * kDay, "subhanallah", 66, {}),
        finished(5 * kDay, "subhanallah", 99, 99),
        finished(4 * kDay, "allahu-akbar", 33, 33),
        finished(3 * kDay, "sayyid-al-istighfar", 132, {}),
        finished(2 * kDay, "the-four-phrases", 100, 100),
        finished(kDay - 489, "allahu-akbar", 20, 33),
        finished(424, "astaghfirullah", 100, 100),
        finished(30, "alhamdulillah", 33, 33),
        finished(26, "subhanallah", 33, 33),
    }};
}

void fillHome(ShotData &data)
{
    auto &session = data.state.devotional.session;
    session.count = 21;
    session.target = 33;
    session.startedAt = Base::milliseconds1970(kShotTime) - 240'000;
    auto timer = KestCore::newTimer("pomodoro", 1'500);
    KestCore::start(timer, kShotTime - Base::Seconds{628});
    data.records.push_back({.id = "shot-timer",
                            .kind = "timer",
                            .title = "Focus",
                            .body = Base::json::encode(timer).value(),
                            .updated = Base::milliseconds1970(kShotTime)});
}

void forgetPlace(ShotData &data)
{
    std::erase_if(data.state.settings,
                  [](const auto &entry) { return entry.first.starts_with("prayer."); });
}

std::function<void(App &)> opened(const char *id)
{
    return [=](App &app) {
        const bool isName = KestCore::isNameId(id);
        app.names()->openTool(isName ? QStringLiteral("names") : QStringLiteral("tasbih"));
        app.names()->open(QLatin1String{id});
    };
}

std::vector<Shot> namesShots()
{
    const QString names = QStringLiteral("names");
    const QString phrases = QStringLiteral("tasbih");
    const auto search = [](App &app) { app.names()->setQuery(QStringLiteral("salam")); };
    const auto searchNothing = [](App &app) { app.names()->setQuery(QStringLiteral("xyz")); };
    const auto favourites = [names](App &app) {
        app.names()->openTool(names);
        app.names()->setTab(QStringLiteral("favourites"));
    };
    return {
        shot(QStringLiteral("names"), names, {}, opened("as-salam")),
        shot(QStringLiteral("names-today"), names),
        shot(
            QStringLiteral("names-pinned"), names,
            [](ShotData &data) { data.state.pin = {.tool = "names", .item = "as-salam"}; },
            opened("as-salam")),
        shot(QStringLiteral("names-long"), names, {}, opened("dhul-jalali-wal-ikram")),
        shot(QStringLiteral("names-search"), names, {}, search),
        shot(QStringLiteral("names-nothing"), names, {}, searchNothing),
        shot(QStringLiteral("phrases"), phrases),
        shot(QStringLiteral("phrases-long"), phrases, {}, opened("sayyid-al-istighfar")),
        shot(QStringLiteral("favourites"), names, {}, favourites),
        shot(
            QStringLiteral("favourites-none"), names,
            [](ShotData &data) { data.state.devotional.favorites.clear(); }, favourites),
    };
}

} // namespace

std::vector<Shot> devotionalShots()
{
    const QString history = QStringLiteral("history");
    const QString home = QStringLiteral("home");
    std::vector<Shot> shots = namesShots();
    const std::vector<Shot> others{
        shot(QStringLiteral("history"), history, fillHistory),
        shot(QStringLiteral("history-month"), history, fillHistory,
             [](App &app) { app.history()->setPeriod(QStringLiteral("month")); }),
        shot(QStringLiteral("history-phrases"), history, fillHistory,
             [](App &app) {
                 app.history()->setPeriod(QStringLiteral("all"));
                 app.history()->setByPhrase(true);
             }),
        shot(QStringLiteral("history-empty"), history),
        shot(QStringLiteral("history-off"), history,
             [](ShotData &data) {
                 fillHistory(data);
                 data.state.devotional.preferences.historyEnabled = false;
             }),
        shot(QStringLiteral("friday"), QStringLiteral("friday"),
             [](ShotData &data) { data.state.settings["friday.enabled"] = "true"; }),
        shot(QStringLiteral("friday-nowhere"), QStringLiteral("friday"), forgetPlace),
        shot(QStringLiteral("home"), home, fillHome),
        shot(QStringLiteral("home-nothing"), home, forgetPlace),
        shot(QStringLiteral("home-paused"), home,
             [](ShotData &data) {
                 fillHome(data);
                 data.state.devotional.session.isPaused = true;
                 data.state.devotional.selectedDhikrId = "sayyid-al-istighfar";
                 data.state.settings["home.widgets"] = "prayer,dhikr,names";
             }),
    };
    shots.insert(shots.end(), others.begin(), others.end());
    return shots;
}

} // namespace Velvetnook
