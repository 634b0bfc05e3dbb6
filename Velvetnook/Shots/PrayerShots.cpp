// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerFocusPlan.h"
#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Shots/Shot.h"

namespace Velvetnook
{

namespace
{

using KestCore::LocalRecord;
using KestCore::TimerState;

constexpr double kMinute = 60;
constexpr double kHour = 3600;

LocalRecord timer(const std::string &id, const std::string &title, const TimerState &state)
{
    const KestCore::Timer made{.record = {.id = id, .kind = "timer", .title = title},
                               .state = state};
    return KestCore::savedTimer(made, kShotTime).value_or(LocalRecord{});
}

// One that has so many seconds left.
TimerState running(const std::string &mode, double minutes, double left)
{
    TimerState state = KestCore::newTimer(mode, minutes * kMinute);
    KestCore::start(state, kShotTime - Base::Seconds{minutes * kMinute - left});
    return state;
}

TimerState paused(const std::string &mode, double minutes, double elapsed)
{
    TimerState state = KestCore::newTimer(mode, minutes * kMinute);
    state.elapsed = elapsed;
    return state;
}

TimerState finished(const std::string &mode, double minutes, double ago)
{
    TimerState state = running(mode, minutes, -ago);
    state.notified = true;
    return state;
}

void addTimers(ShotData &data)
{
    data.records = {
        timer("a", "Focus", running("pomodoro", 25, 14 * kMinute + 32)),
        timer("b", "Stopwatch", paused("stopwatch", 10, 3 * kMinute + 8)),
        timer("c", "Water", running("hydration", 30, 17 * kMinute + 40)),
    };
}

void addMoreTimers(ShotData &data)
{
    data.records = {
        timer("a", "Focus", paused("pomodoro", 25, 10 * kMinute)),
        timer("b", "Bread in the oven", running("countdown", 50, 42)),
        timer("c", "A title that is too long for the line that it has to stand on",
              running("countdown", 24 * 60, 22 * kHour + 14 * kMinute + 3)),
        timer("d", "Timer 2", finished("countdown", 10, 5 * kMinute)),
        timer("e", "Water", running("hydration", 30, 17 * kMinute + 40)),
    };
}

void setPlace(ShotData &data, const char *latitude, const char *longitude, const char *zone)
{
    data.state.settings["prayer.latitude"] = latitude;
    data.state.settings["prayer.longitude"] = longitude;
    data.state.settings["prayer.timezone"] = zone;
}

// A period until five minutes before asr, as it is without the adjustment.
void addFocus(ShotData &data, const std::string &adjustment)
{
    const Base::Instant deadline = kShotTime + Base::Seconds{37 * kMinute};
    TimerState state = running("pomodoro", 37, 37 * kMinute);
    state.deadline = deadline;
    const KestCore::PrayerFocusPlan plan{
        .prayer = "asr", .bufferMinutes = 5, .deadline = deadline};
    data.records = {timer("a", "Focus until Asr", state),
                    LocalRecord{.id = "plan",
                                .kind = "prayer",
                                .title = "Focus until Asr",
                                .body = KestCore::json::encode(plan).value_or(std::string{}),
                                .extra = {{"timer", "a"}}}};
    if (!adjustment.empty()) {
        data.state.settings["prayer.adjust.asr"] = adjustment;
    }
}

Shot prayer(const char *name, Base::Seconds later = {})
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("prayer"),
            .later = later};
}

Shot onPage(const char *name, const char *page)
{
    Shot shot = prayer(name);
    shot.arrange = [page](App &app) { app.prayer()->setPage(QLatin1String{page}); };
    return shot;
}

Shot atPlace(const char *name, const char *latitude, const char *longitude, const char *zone)
{
    Shot shot = prayer(name);
    shot.prepare = [=](ShotData &data) { setPlace(data, latitude, longitude, zone); };
    return shot;
}

Shot withFocus(const char *name, const char *adjustment)
{
    Shot shot = prayer(name);
    shot.prepare = [=](ShotData &data) { addFocus(data, adjustment); };
    return shot;
}

Shot timers(const char *name, void (*prepare)(ShotData &), const char *chosen = "")
{
    return {.name = QLatin1String{name},
            .surface = QStringLiteral("Panel"),
            .view = QStringLiteral("timers"),
            .prepare = prepare,
            .arrange = [chosen](App &app) {
                if (*chosen != '\0') {
                    app.timers()->choose(QLatin1String{chosen});
                }
            }};
}

std::vector<Shot> prayerDays()
{
    Shot noPlace = prayer("prayer-noplace");
    noPlace.prepare = [](ShotData &data) {
        std::erase_if(data.state.settings,
                      [](const auto &setting) { return setting.first.starts_with("prayer."); });
    };
    Shot wrong = prayer("prayer-wrong");
    wrong.prepare = [](ShotData &data) {
        data.state.settings["prayer.timezone"] = "Nowhere/None";
    };
    return {prayer("prayer-day"),
            prayer("prayer-dawn", Base::Seconds{-8 * kHour}),
            prayer("prayer-sunrise", Base::Seconds{-7 * kHour}),
            prayer("prayer-lastminute", Base::Seconds{41 * kMinute + 15}),
            prayer("prayer-now", Base::Seconds{42 * kMinute}),
            prayer("prayer-night", Base::Seconds{8 * kHour}),
            atPlace("prayer-north", "69.65", "18.96", "Europe/Oslo"),
            atPlace("prayer-polar", "78.22", "15.65", "Arctic/Longyearbyen"),
            atPlace("prayer-equator", "-1.29", "36.82", "Africa/Nairobi"),
            noPlace,
            wrong};
}

} // namespace

std::vector<Shot> prayerShots()
{
    std::vector<Shot> shots = prayerDays();
    Shot focus = prayer("prayer-focus");
    focus.arrange = [](App &app) { app.prayer()->askFocus(); };
    Shot refused = focus;
    refused.name = QStringLiteral("prayer-refused");
    refused.later = Base::Seconds{39 * kMinute};
    Shot review = withFocus("prayer-review", "10");
    review.arrange = focus.arrange;
    for (Shot &shot : std::vector{
             onPage("prayer-week", "week"), onPage("prayer-month", "month"), focus, refused,
             withFocus("prayer-focusing", ""), withFocus("prayer-changed", "10"), review,
             timers("timers-empty", nullptr), timers("timers-running", addTimers),
             timers("timers-several", addMoreTimers, "c"),
             timers("timers-paused", addMoreTimers, "a"),
             timers("timers-finished", addMoreTimers, "d"),
             timers("timers-stopwatch", addTimers, "b")}) {
        shots.push_back(std::move(shot));
    }
    return shots;
}

} // namespace Velvetnook
