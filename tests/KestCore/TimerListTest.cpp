// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerList.h"

#include "KestCore/Models/UtilityPayloads.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

namespace KestCore
{

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kNow = 1'795'000'000;

Base::Instant at(double seconds) { return Base::fromSeconds1970(kNow + seconds); }

// Started at 0.
Timer timerOf(std::string id, std::string_view mode, double duration)
{
    Timer timer{.record = {.id = std::move(id), .kind = "timer"},
                .state = newTimer(mode, duration)};
    timer.record.title = "T-" + timer.record.id;
    start(timer.state, at(0));
    timer.record = *savedTimer(timer, at(0));
    return timer;
}

NativeState stateThatNotifies()
{
    NativeState state = defaultNativeState();
    state.settings["timers.notifications"] = "true";
    state.devotional.preferences.historyEnabled = true;
    return state;
}

// The timers as they are once the settlement is saved, and the completions among it.
struct Saved {
    std::vector<Timer> timers{};
    std::vector<Completion> completions{};
};

Saved save(std::vector<Timer> timers, const TimerSettlement &settlement)
{
    Saved saved{.timers = std::move(timers)};
    for (const LocalRecord &record : settlement.written) {
        EXPECT_TRUE(validate(record));
        if (record.kind == "completion") {
            saved.completions.push_back(
                *json::decode<Completion>(std::string_view{record.body}));
            continue;
        }
        for (Timer &timer : saved.timers) {
            if (timer.record.id == record.id) {
                timer = timersOf(std::vector{record})->front();
            }
        }
    }
    return saved;
}

std::vector<std::string> bodiesOf(const TimerSettlement &settlement)
{
    std::vector<std::string> bodies;
    for (const auto &notification : settlement.notifications) {
        bodies.push_back(notification.body);
    }
    return bodies;
}

} // namespace

TEST(TimerList, ANewTimerHasALengthATitleAndRuns)
{
    const Settings settings{{"timer.duration.countdown", "3"}};
    const auto first = makeTimer({.mode = TimerMode::countdown}, {}, settings, at(0));
    ASSERT_TRUE(first);
    EXPECT_EQ(first->state.deadline, at(180));
    EXPECT_TRUE(validate(first->record));
    EXPECT_EQ(first->record.updated, kNow * 1000);
    std::vector<Timer> timers{*first};
    const auto add = [&](TimerMode mode, std::string title) {
        timers.push_back(
            *makeTimer({.mode = mode, .title = std::move(title)}, timers, {}, at(0)));
        return timers.back().record.title;
    };
    EXPECT_EQ(timers[0].record.title, "Timer");
    EXPECT_EQ(add(TimerMode::countdown, " \n"), "Timer 2");
    EXPECT_EQ(add(TimerMode::countdown, ""), "Timer 3");
    timers.erase(timers.begin() + 1);
    EXPECT_EQ(add(TimerMode::countdown, ""), "Timer 2");
    EXPECT_EQ(add(TimerMode::hydration, ""), "Water");
    EXPECT_EQ(add(TimerMode::pomodoro, " Tea "), "Tea");
    EXPECT_EQ(add(TimerMode::pomodoro, "Tea"), "Tea"); // the user's own words
    EXPECT_EQ(*timersOf(std::vector{timers[0].record}), std::vector{timers[0]});
}

TEST(TimerList, ANewTimerIsRefusedOutsideTheLimits)
{
    const std::string limits{kTimerLimits};
    const std::string title = "A title is one line of at most 200 characters";
    struct Case {
        NewTimer wanted;
        std::string message; // empty: accepted
    };
    for (const auto &[wanted, message] : {
             Case{{.minutes = 1}, ""},
             Case{{.minutes = kMostTimerMinutes}, ""},
             Case{{.minutes = 0.99}, limits},
             Case{{.minutes = kMostTimerMinutes + 1}, limits},
             Case{{.minutes = std::nan("")}, limits},
             Case{{.mode = TimerMode::stopwatch, .minutes = 5}, "A stopwatch has no length."},
             Case{{.title = std::string(200, 'x')}, ""},
             Case{{.title = std::string(201, 'x')}, title},
             Case{{.title = "a\nb"}, title},
         }) {
        const auto made = makeTimer(wanted, {}, {}, at(0));
        EXPECT_EQ(made ? "" : made.error().message, message);
    }
}

TEST(TimerList, ListsAndSchedulesTheSoonestEndFirst)
{
    std::vector<Timer> timers{
        timerOf("pause", "countdown", 60), timerOf("watch", "stopwatch", 60),
        timerOf("late", "countdown", 900), timerOf("soon", "hydration", 300),
        timerOf("told", "countdown", 100)};
    pauseTimer(timers[0].state, at(10));
    timers[4].state.notified = true;
    EXPECT_THAT(timerSchedule(timers, at(500)),
                ElementsAre(TimerEnd{at(300), "soon"}, TimerEnd{at(900), "late"}));
    sortForList(timers);
    std::vector<std::string> order;
    for (const Timer &timer : timers) {
        order.push_back(timer.record.id);
    }
    EXPECT_THAT(order, ElementsAre("told", "soon", "late", "watch", "pause"));
}

TEST(TimerList, SeveralEndsAreAnnouncedOnceInTheirOrder)
{
    const std::vector<Timer> timers{
        timerOf("b", "countdown", 200), timerOf("a", "pomodoro", 100),
        timerOf("w", "stopwatch", 60), timerOf("c", "countdown", 5000)};
    const auto state = stateThatNotifies();
    const auto settlement = settleTimers(timers, state, at(3000));
    ASSERT_TRUE(settlement);
    EXPECT_THAT(settlement->notifications,
                ElementsAre(TimerNotification{"timer-a", "Velvetnook timer", "T-a finished."},
                            TimerNotification{"timer-b", "Velvetnook timer", "T-b finished."}));
    const Saved saved = save(timers, *settlement);
    EXPECT_THAT(saved.completions,
                ElementsAre(Completion{"timers", "pomodoro", 100, (kNow + 100) * 1000},
                            Completion{"timers", "countdown", 200, (kNow + 200) * 1000}));
    EXPECT_TRUE(hasEnded(saved.timers[0].state, at(3000)));
    const auto again = settleTimers(saved.timers, state, at(4000));
    EXPECT_THAT(again->notifications, IsEmpty());
    EXPECT_THAT(again->written, IsEmpty());
}

TEST(TimerList, ATimerIsTickedOffSilentlyWhereTheUserWantsSilence)
{
    const std::vector<Timer> timers{timerOf("a", "countdown", 100)};
    for (const char *value : {"", "TRUE", "1", "false"}) {
        NativeState state = stateThatNotifies();
        state.settings["timers.notifications"] = value;
        state.devotional.preferences.historyEnabled = false;
        const auto settlement = settleTimers(timers, state, at(100));
        EXPECT_THAT(settlement->notifications, IsEmpty());
        const Saved saved = save(timers, *settlement);
        EXPECT_TRUE(saved.timers[0].state.notified);
        EXPECT_THAT(saved.completions, IsEmpty());
        // Turned on later, it does not bring up what is over.
        EXPECT_THAT(bodiesOf(*settleTimers(saved.timers, stateThatNotifies(), at(200))),
                    IsEmpty());
    }
}

TEST(TimerList, AWaterReminderThatSleptThroughRoundsSpeaksOnceAndStartsFromNow)
{
    const std::vector<Timer> timers{timerOf("w", "hydration", 1800)};
    const auto settlement = settleTimers(timers, stateThatNotifies(), at(100'000));
    EXPECT_THAT(bodiesOf(*settlement), ElementsAre("T-w finished."));
    const Saved saved = save(timers, *settlement);
    EXPECT_EQ(saved.completions.size(), 1);
    EXPECT_THAT(timerSchedule(saved.timers, at(100'000)),
                ElementsAre(TimerEnd{at(101'800), "w"}));
    EXPECT_THAT(settleTimers(saved.timers, stateThatNotifies(), at(101'799))->written,
                IsEmpty());
    // One without a length, from elsewhere, does not come due for ever.
    const std::vector<Timer> bad{timerOf("z", "hydration", 0)};
    const Saved once = save(bad, *settleTimers(bad, stateThatNotifies(), at(0)));
    EXPECT_THAT(settleTimers(once.timers, stateThatNotifies(), at(1))->written, IsEmpty());
}

TEST(TimerList, AClockSetBackLengthensNoRun)
{
    const std::vector<Timer> timers{timerOf("a", "countdown", 600)};
    const auto settlement = settleTimers(timers, stateThatNotifies(), at(-3600));
    EXPECT_THAT(settlement->notifications, IsEmpty());
    const Saved saved = save(timers, *settlement);
    EXPECT_EQ(remaining(saved.timers[0].state, at(-3600)), 600);
    EXPECT_EQ(saved.timers[0].state.started, at(-3600));

    // Only a part of the run was left when it was last started.
    TimerState resumed = timers[0].state;
    pauseTimer(resumed, at(500));
    resumeTimer(resumed, at(550));
    pauseTimer(resumed, at(0));
    EXPECT_EQ(remaining(resumed, at(0)), 100);

    // Within the run the deadline stands: nobody can tell what has really passed.
    TimerState within = timers[0].state;
    followClock(within, at(0.5));
    EXPECT_EQ(within, timers[0].state);

    TimerState watch = timerOf("w", "stopwatch", 60).state;
    followClock(watch, at(-50));
    EXPECT_EQ(remaining(watch, at(-40)), 10);

    // What was announced is over, whatever the clock says now.
    TimerState told = timers[0].state;
    told.notified = true;
    followClock(told, at(300));
    EXPECT_TRUE(hasEnded(told, at(300)));
}

TEST(TimerList, AnEndedTimerStaysEndedUntilItIsStartedOver)
{
    TimerState timer = timerOf("a", "countdown", 600).state;
    pauseTimer(timer, at(700));
    EXPECT_TRUE(timer.running); // or its end would never be announced
    TimerState adjusted = timer;
    ASSERT_TRUE(adjustTimer(adjusted, at(700), 90));
    EXPECT_EQ(remaining(adjusted, at(700)), 90);
    resumeTimer(timer, at(700));
    EXPECT_EQ(remaining(timer, at(700)), 600);
    pauseTimer(timer, at(800));
    resumeTimer(timer, at(900));
    EXPECT_EQ(remaining(timer, at(900)), 500);
}

// Whenever the program looks, nothing stays due, and each run that ended is announced once.
RC_GTEST_PROP(TimerList, NothingStaysDue, ())
{
    std::vector<Timer> timers;
    for (const char *id : {"a", "b", "c", "d"}) {
        const auto mode = *rc::gen::element<std::string>("pomodoro", "hydration", "stopwatch");
        timers.push_back(timerOf(id, mode, *rc::gen::inRange(60, 4000)));
    }
    double now = 0;
    for (const int step : *rc::gen::container<std::vector<int>>(rc::gen::inRange(-900, 3000))) {
        now += step;
        const auto due = timerSchedule(timers, at(now));
        const auto expected =
            std::ranges::count_if(due, [&](const TimerEnd &end) { return end.at <= at(now); });
        const auto settlement = settleTimers(timers, stateThatNotifies(), at(now));
        RC_ASSERT(settlement.has_value());
        RC_ASSERT(std::ssize(settlement->notifications) == expected);
        timers = save(std::move(timers), *settlement).timers;
        const auto next = timerSchedule(timers, at(now));
        RC_ASSERT(
            std::ranges::all_of(next, [&](const TimerEnd &end) { return end.at > at(now); }));
    }
}

} // namespace KestCore
