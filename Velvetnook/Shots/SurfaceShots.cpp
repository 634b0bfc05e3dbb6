// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kMinute{60};

Shot strip(const char *name, std::function<void(ShotData &)> prepare,
           std::function<void(App &)> arrange = {}, const char *look = "compact")
{
    return {.name = QStringLiteral("strip-%1").arg(QLatin1String{name}),
            .surface = QStringLiteral("Strip"),
            .view = QString::fromLatin1(look),
            .prepare = std::move(prepare),
            .arrange = std::move(arrange)};
}

Shot panel(const char *name, const char *view, std::function<void(App &)> arrange = {})
{
    return {.name = QStringLiteral("panel-%1").arg(QLatin1String{name}),
            .surface = QStringLiteral("Panel"),
            .view = QString::fromLatin1(view),
            .prepare = {},
            .arrange = std::move(arrange)};
}

std::function<void(ShotData &)> pinned(const char *tool, const char *item, const char *display,
                                       const char *size)
{
    return [=](ShotData &data) {
        data.state.pin = {.tool = tool, .item = item};
        data.state.devotional.preferences.pinDisplay = display;
        data.state.devotional.preferences.pinSize = size;
    };
}

void pinNothing(ShotData &data) { data.state.devotional.preferences.pinEnabled = false; }

// A timer of 25 minutes with so much left.
std::function<void(ShotData &)> timer(double secondsLeft, bool isPinned)
{
    return [=](ShotData &data) {
        data.state.devotional.preferences.pinEnabled = isPinned;
        data.state.pin = {.tool = "dhikr", .item = "alhamdulillah"};
        const Base::Instant begun = kShotTime - Base::Seconds{1500 - secondsLeft};
        auto made = KestCore::makeTimer({.mode = KestCore::TimerMode::pomodoro, .minutes = 25},
                                        {}, {}, begun);
        if (made) {
            data.records.push_back(made->record);
        }
    };
}

// A session that began half a minute ago.
std::function<void(ShotData &)> counted(std::int64_t count, bool isPaused)
{
    return [=](ShotData &data) {
        pinned("dhikr", "subhanallah", "arabic", "compact")(data);
        KestCore::Session &session = data.state.devotional.session;
        session.count = count;
        for (std::int64_t before = 0; before < count; ++before) {
            session.history.push_back(before);
        }
        session.startedAt = Base::milliseconds1970(kShotTime - kMinute / 2);
        session.isPaused = isPaused;
    };
}

// The next prayer of the shots' day comes so many minutes later than it would.
std::function<void(ShotData &)> prayerIn(const char *minutesLater)
{
    return [=](ShotData &data) {
        pinNothing(data);
        data.state.settings["prayer.strip"] = "true";
        data.state.settings["prayer.adjust.asr"] = minutesLater;
    };
}

std::vector<Shot> stripShots()
{
    const auto arabic = pinned("dhikr", "subhanallah", "arabic", "compact");
    return {
        strip("rest", pinNothing),
        strip("arabic", arabic),
        strip("transliteration", pinned("dhikr", "subhanallah", "transliteration", "compact")),
        strip("meaning", pinned("dhikr", "subhanallah", "meaning", "compact")),
        strip("mini", pinned("dhikr", "subhanallah", "arabic", "mini")),
        strip("long-arabic", pinned("dhikr", "subhanallahil-azim", "arabic", "compact")),
        strip("too-long", pinned("dhikr", "sayyid-al-istighfar", "arabic", "compact")),
        strip("event", {},
              [](App &app) {
                  app.strip()->setNextEvent(
                      UpcomingEvent{.title = QStringLiteral("Call with Amina"),
                                    .start = kShotTime + 8 * kMinute});
              }),
        strip("name", pinned("names", "as-salam", "arabic", "comfortable")),
        strip("name-compact", pinned("names", "as-salam", "arabic", "compact")),
        strip("counting", counted(21, false)),
        strip("paused", counted(21, true)),
        strip("timer", timer(872, false)),
        strip("timer-beside-pin", timer(872, true)),
        strip("timer-last-minute", timer(45, true)),
        strip("prayer-soon", prayerIn("0")),
        strip("prayer-near", prayerIn("-32")),
        strip("prayer-now", prayerIn("-45")),
        strip("prayer-pinned", pinned("prayer", "next", "arabic", "comfortable")),
        strip("message", arabic,
              [](App &app) {
                  app.strip()->say(QStringLiteral("33 · a good pause for tea"),
                                   KestCore::MessageAnimation::sparkle);
              }),
        strip("emphasis", arabic, [](App &app) { app.strip()->emphasise(); }),
        strip("hover-opening", arabic, {}, "hoverOpening"),
        strip("pressed", arabic, {}, "pressed"),
        strip("focused", arabic, {}, "focused"),
    };
}

std::vector<Shot> panelShots()
{
    return {
        panel("all-tools", "",
              [](App &app) {
                  app.panel()->openTool(QStringLiteral("dhikr"));
                  app.panel()->showAllTools();
              }),
        panel("not-built", "weather"),
        panel("message", "notes",
              [](App &app) { app.panel()->showMessage(QStringLiteral("Timer saved")); }),
        panel("message-undo", "timers",
              [](App &app) {
                  app.panel()->showMessage(QStringLiteral("Removed “Bread”"),
                                           QStringLiteral("Undo"),
                                           std::function<void()>{[] {}});
              }),
    };
}

} // namespace

std::vector<Shot> surfaceShots()
{
    std::vector<Shot> all = stripShots();
    for (Shot &shot : panelShots()) {
        all.push_back(std::move(shot));
    }
    return all;
}

} // namespace Velvetnook
