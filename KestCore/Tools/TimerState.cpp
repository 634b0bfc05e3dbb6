// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerState.h"

#include "Base/Text.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace KestCore
{

namespace
{

struct ModeRow {
    std::string_view mode;
    std::string_view title;
    double minutes;
};

// A break is a length that the settings know, not a timer of its own kind.
constexpr ModeRow kModes[] = {
    {"pomodoro", "Focus", 25},  {"countdown", "Timer", 10}, {"stopwatch", "Stopwatch", 10},
    {"hydration", "Water", 30}, {"break", "Timer", 5},
};
constexpr ModeRow kOtherMode{"", "Timer", 10};

const ModeRow &rowOf(std::string_view mode)
{
    const auto *row = std::ranges::find(kModes, mode, &ModeRow::mode);
    return row == std::end(kModes) ? kOtherMode : *row;
}

bool isStopwatch(const TimerState &timer)
{
    return timer.mode == Base::textOf(TimerMode::stopwatch);
}

bool isHydration(const TimerState &timer)
{
    return timer.mode == Base::textOf(TimerMode::hydration);
}

// Stored numbers may be of any size; what is computed of them must still fit into a document.
double withinDoubles(double value)
{
    constexpr double kMost = std::numeric_limits<double>::max();
    return std::clamp(value, -kMost, kMost);
}

double secondsBetween(Base::Instant from, Base::Instant to)
{
    return withinDoubles(Base::seconds1970(to) - Base::seconds1970(from));
}

Base::Instant after(Base::Instant now, double seconds)
{
    return Base::fromSeconds1970(withinDoubles(Base::seconds1970(now) + seconds));
}

} // namespace

std::string_view displayTitle(std::string_view mode) { return rowOf(mode).title; }

double configuredMinutes(std::string_view mode, const Settings &settings)
{
    const auto found = settings.find("timer.duration." + std::string{mode});
    if (found != settings.end()) {
        const auto minutes = Base::numberFrom<double>(found->second);
        if (minutes && *minutes >= 1 && *minutes <= kMostTimerMinutes) {
            return *minutes;
        }
    }
    return rowOf(mode).minutes;
}

TimerState newTimer(std::string_view mode, double duration)
{
    return {.mode = std::string{mode}, .duration = duration};
}

bool countsDown(const TimerState &timer) { return !isStopwatch(timer); }

double remaining(const TimerState &timer, Base::Instant now)
{
    if (isStopwatch(timer)) {
        const double counted =
            timer.running ? secondsBetween(timer.started.value_or(now), now) : 0;
        return std::max(withinDoubles(timer.elapsed + std::max(counted, 0.0)), 0.0);
    }
    const double left = timer.running ? secondsBetween(now, timer.deadline.value_or(now))
                                      : withinDoubles(timer.duration - timer.elapsed);
    return std::max(left, 0.0);
}

void start(TimerState &timer, Base::Instant now)
{
    if (timer.running) {
        return;
    }
    if (timer.notified) {
        timer.elapsed = 0;
    }
    timer.running = true;
    timer.notified = false;
    timer.started = now;
    if (countsDown(timer)) {
        timer.deadline = after(now, std::max(timer.duration - timer.elapsed, 0.0));
    }
}

void pause(TimerState &timer, Base::Instant now)
{
    if (!timer.running) {
        return;
    }
    const double shown = remaining(timer, now);
    timer.elapsed = countsDown(timer) ? withinDoubles(timer.duration - shown) : shown;
    timer.running = false;
    timer.deadline.reset();
    timer.started.reset();
}

Result<void> adjust(TimerState &timer, Base::Instant now, double seconds)
{
    // Worded so that what is not a number fails too.
    if (isStopwatch(timer) || !(seconds >= kShortestTimer && seconds <= kLongestTimer)) {
        return std::unexpected(KestError::invalidData(std::string{kTimerLimits}));
    }
    const double consumed = std::max(timer.duration - remaining(timer, now), 0.0);
    if (seconds + consumed > kLongestTimer) {
        return std::unexpected(
            KestError::invalidData("Total timer duration cannot exceed 365 days."));
    }
    timer.elapsed = consumed;
    timer.duration = seconds + consumed;
    timer.deadline = timer.running ? std::optional{after(now, seconds)} : std::nullopt;
    timer.notified = false;
    return {};
}

void repeatHydration(TimerState &timer, Base::Instant now)
{
    if (!isHydration(timer) || !timer.running) {
        return;
    }
    timer.deadline = after(now, timer.duration);
    timer.elapsed = 0;
    timer.started = now;
    timer.notified = false;
}

bool hasEnded(const TimerState &timer, Base::Instant now)
{
    return countsDown(timer) && remaining(timer, now) <= 0;
}

} // namespace KestCore
