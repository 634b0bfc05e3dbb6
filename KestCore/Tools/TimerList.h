// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Models/LocalRecord.h"
#include "KestCore/Tools/TimerState.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

// Several timers at once. Each is a record of kind "timer" whose body is its TimerState. A
// deadline is a moment on the wall clock, so after a suspend, a new time zone or a clock that
// was set, what is due is simply found again from the time it is now.
namespace KestCore
{

struct Timer {
    LocalRecord record{};
    TimerState state{}; // what the body says

    bool operator==(const Timer &) const = default;
};

// The timers of these records. Fails with invalidData "Invalid timer" for one that does not
// decode.
[[nodiscard]] Result<std::vector<Timer>> timersOf(std::span<const LocalRecord> records);

// The timer's record with its present state, changed at `now`.
[[nodiscard]] Result<LocalRecord> savedTimer(const Timer &timer, Base::Instant now);

// As people look for them: countdowns that run, soonest end first, then stopwatches that run,
// then what waits; else as they were.
void sortForList(std::vector<Timer> &timers);

struct NewTimer {
    TimerMode mode{};
    std::optional<double> minutes{}; // absent: as configured
    std::string title{};             // empty: the mode's own, numbered while that is taken
};

// A timer that starts at `now`. Fails with invalidData for a length outside the limits, a
// length for a stopwatch and what is no title (checkedTitle).
[[nodiscard]] Result<Timer> makeTimer(const NewTimer &wanted, std::span<const Timer> existing,
                                      const Settings &settings, Base::Instant now);

// A clock that was set back makes a countdown show more than its run had left when it began,
// and stops a stopwatch until the clock is where it was. How long such a run has really taken
// is not known any more, so it begins anew at `now`, with what it had left then: late by what
// had passed, but never by the step of the clock. An end that was announced stays one. The
// steps below do this first.
void followClock(TimerState &timer, Base::Instant now);
// All of them, with the records of those that it changed: until these are saved, every look
// begins the run anew.
[[nodiscard]] Result<std::vector<LocalRecord>> followClock(std::span<Timer> timers,
                                                           Base::Instant now);

// One that ended starts over from zero; any other goes on.
void resumeTimer(TimerState &timer, Base::Instant now);
// One that ended is left as it is, so that its end is still announced.
void pauseTimer(TimerState &timer, Base::Instant now);
[[nodiscard]] Result<void> adjustTimer(TimerState &timer, Base::Instant now, double seconds);

// A running countdown's end, which may have passed without being handled.
struct TimerEnd {
    Base::Instant at{};
    std::string timerId{};

    bool operator==(const TimerEnd &) const = default;
};

// What ends when, soonest first; those whose end was announced are left out.
std::vector<TimerEnd> timerSchedule(std::span<const Timer> timers, Base::Instant now);

struct TimerNotification {
    std::string id{};
    std::string title{};
    std::string body{};

    bool operator==(const TimerNotification &) const = default;
};

// What has to happen because timers have ended.
struct TimerSettlement {
    std::vector<LocalRecord> written{};             // to save in one step
    std::vector<TimerNotification> notifications{}; // to post once that is saved
};

// Handles every end until `now`, earliest first. Each is marked as announced, also while the
// notifications are turned off: turning them on later must not bring up old ends. It leaves a
// record of kind "completion", unless the user wants no history. A water reminder starts
// again from `now`; one that slept through many of its rounds is announced once.
[[nodiscard]] Result<TimerSettlement> settleTimers(std::span<const Timer> timers,
                                                   const NativeState &state, Base::Instant now);

// The same for a timer that its user is about to change or remove. Who does that has seen its
// end, so there is nothing to post; gives what is to be saved beside the timer itself.
[[nodiscard]] Result<std::vector<LocalRecord>>
settleTimer(Timer &timer, const NativeState &state, Base::Instant now);

} // namespace KestCore
