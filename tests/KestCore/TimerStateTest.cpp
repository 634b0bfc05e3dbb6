// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerState.h"

#include "tests/Base/RandomValues.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <limits>

namespace KestCore
{

namespace
{

// Whole numbers near it add without rounding.
constexpr double kNow = 1'795'000'000;

Base::Instant at(double seconds) { return Base::fromSeconds1970(kNow + seconds); }

TimerState started(std::string_view mode, double duration)
{
    TimerState timer = newTimer(mode, duration);
    start(timer, at(0));
    return timer;
}

} // namespace

TEST(TimerState, RunsPausesAndRunsOn)
{
    TimerState timer = started("pomodoro", 1500);
    EXPECT_EQ(timer.deadline, at(1500));
    start(timer, at(60)); // running already
    EXPECT_EQ(timer.started, at(0));
    pause(timer, at(600));
    EXPECT_EQ(timer, (TimerState{.mode = "pomodoro", .duration = 1500, .elapsed = 600}));
    pause(timer, at(700));
    EXPECT_EQ(remaining(timer, at(5000)), 900);
    start(timer, at(1000));
    EXPECT_EQ(timer.deadline, at(1900));
    EXPECT_EQ(remaining(timer, at(1899)), 1);
    EXPECT_FALSE(hasEnded(timer, at(1899)));
    EXPECT_EQ(remaining(timer, at(99'999)), 0);
    EXPECT_TRUE(hasEnded(timer, at(1900)));
    // Started over: what was announced begins from zero.
    pause(timer, at(2000));
    timer.notified = true;
    start(timer, at(2000));
    EXPECT_EQ(timer.deadline, at(3500));
    EXPECT_FALSE(timer.notified);
}

TEST(TimerState, AStopwatchCountsUpAndNeverBelowZero)
{
    TimerState timer = started("stopwatch", 600);
    EXPECT_FALSE(timer.deadline);
    EXPECT_EQ(remaining(timer, at(7000)), 7000);
    EXPECT_FALSE(hasEnded(timer, at(7000)));
    EXPECT_EQ(remaining(timer, at(-50)), 0);
    pause(timer, at(30));
    start(timer, at(100));
    EXPECT_EQ(remaining(timer, at(105)), 35);
    EXPECT_EQ(remaining(timer, at(0)), 30); // the clock went back: what was counted stays
    timer.started.reset();
    EXPECT_EQ(remaining(timer, at(105)), 30);
    timer.elapsed = -100;
    EXPECT_EQ(remaining(timer, at(105)), 0);
}

TEST(TimerState, ARunningCountdownWithoutADeadlineIsOver)
{
    const TimerState timer{.mode = "anything", .duration = 60, .running = true};
    EXPECT_EQ(remaining(timer, at(0)), 0);
}

TEST(TimerState, AdjustSetsTheTimeLeft)
{
    TimerState running = started("countdown", 600);
    running.notified = true;
    ASSERT_TRUE(adjust(running, at(100), 60));
    EXPECT_EQ(running, (TimerState{.mode = "countdown",
                                   .duration = 160,
                                   .deadline = at(160),
                                   .elapsed = 100,
                                   .started = at(0),
                                   .running = true}));
    TimerState early = started("countdown", 600); // the clock went back
    ASSERT_TRUE(adjust(early, at(-100), 90));
    EXPECT_EQ(early.duration, 90);
    EXPECT_EQ(early.elapsed, 0);
    TimerState paused = started("hydration", 600);
    pause(paused, at(1));
    ASSERT_TRUE(adjust(paused, at(50), kLongestTimer - 1));
    EXPECT_EQ(paused,
              (TimerState{.mode = "hydration", .duration = kLongestTimer, .elapsed = 1}));
}

TEST(TimerState, AdjustRefusesAndLeavesTheTimerAlone)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::string total = "Total timer duration cannot exceed 365 days.";
    struct Case {
        std::string_view mode;
        double seconds;
        std::string message;
    };
    for (const auto &[mode, seconds, message] : {
             Case{"countdown", 59, std::string{kTimerLimits}},
             Case{"countdown", std::nextafter(60, 0), std::string{kTimerLimits}},
             Case{"countdown", kLongestTimer + 1, std::string{kTimerLimits}},
             Case{"countdown", -60, std::string{kTimerLimits}},
             Case{"countdown", kInfinity, std::string{kTimerLimits}},
             Case{"countdown", std::nan(""), std::string{kTimerLimits}},
             Case{"stopwatch", 120, std::string{kTimerLimits}},
             Case{"pomodoro", kLongestTimer, total},
         }) {
        TimerState timer = started(mode, 600);
        const TimerState before = timer;
        const auto verdict = adjust(timer, at(1), seconds);
        ASSERT_FALSE(verdict) << mode << seconds;
        EXPECT_EQ(verdict.error(), KestError::invalidData(message)) << mode << seconds;
        EXPECT_EQ(timer, before);
    }
}

TEST(TimerState, OnlyARunningWaterReminderRepeats)
{
    TimerState water = started("hydration", 1800);
    water.elapsed = 7;
    water.notified = true;
    repeatHydration(water, at(9000));
    EXPECT_EQ(water, (TimerState{.mode = "hydration",
                                 .duration = 1800,
                                 .deadline = at(10'800),
                                 .started = at(9000),
                                 .running = true}));
    TimerState paused = water;
    pause(paused, at(9001));
    for (TimerState other : {paused, started("countdown", 60), started("stopwatch", 60)}) {
        const TimerState before = other;
        repeatHydration(other, at(99));
        EXPECT_EQ(other, before) << other.mode;
    }
}

TEST(TimerState, LengthsComeFromTheSettingsWhereTheyMakeSense)
{
    struct Case {
        const char *value;
        double minutes;
    };
    for (const auto &[value, minutes] : {
             Case{"1", 1},      Case{"525600", 525'600}, Case{"2.5", 2.5},
             Case{"+7", 7},     Case{"1e2", 100},        Case{"0", 10},
             Case{"0.99", 10},  Case{"525601", 10},      Case{"-5", 10},
             Case{"", 10},      Case{" 5", 10},          Case{"5 ", 10},
             Case{"5m", 10},    Case{"five", 10},        Case{"nan", 10},
             Case{"inf", 10},   Case{"0x10", 10},        Case{"2,5", 10},
             Case{"1e400", 10},
         }) {
        EXPECT_EQ(configuredMinutes("countdown", {{"timer.duration.countdown", value}}),
                  minutes)
            << value;
    }
    const Settings others{{"timer.duration.break", "9"}, {"timer.duration.Pomodoro", "9"}};
    EXPECT_EQ(configuredMinutes("pomodoro", others), 25);
    EXPECT_EQ(configuredMinutes("break", others), 9);
    EXPECT_EQ(configuredMinutes("break", {}), 5);
    EXPECT_EQ(configuredMinutes("hydration", {}), 30);
    EXPECT_EQ(configuredMinutes("stopwatch", {}), 10);
    EXPECT_EQ(configuredMinutes("other", {}), 10);
}

// However often it is paused, a countdown loses exactly the time that it ran.
RC_GTEST_PROP(TimerState, PausingKeepsTheTotal, ())
{
    TimerState timer = started("countdown", 100'000);
    double now = 0;
    double ran = 0;
    for (const int step : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 9000))) {
        ran += timer.running ? step : 0;
        now += step;
        RC_ASSERT(remaining(timer, at(now)) == std::max(100'000 - ran, 0.0));
        step % 2 == 0 ? pause(timer, at(now)) : start(timer, at(now));
    }
}

RC_GTEST_PROP(TimerState, WhatAdjustAcceptsIsWhatIsLeft, ())
{
    TimerState timer = started("countdown", *rc::gen::inRange(0, 40'000'000));
    if (*rc::gen::arbitrary<bool>()) {
        pause(timer, at(*rc::gen::inRange(0, 1000)));
    }
    const TimerState before = timer;
    const double seconds = *rc::gen::inRange(0, 40'000'000);
    const Base::Instant now = at(*rc::gen::inRange(1000, 40'000'000));
    if (adjust(timer, now, seconds)) {
        RC_ASSERT(remaining(timer, now) == seconds);
        RC_ASSERT(timer.running == before.running);
        RC_ASSERT(timer.duration <= kLongestTimer);
    } else {
        RC_ASSERT(timer == before);
    }
}

} // namespace KestCore
