// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/TimerAnswers.h"

#include <cmath>
#include <ctime>

namespace Cli
{

namespace
{

using KestCore::Timer;

// How soon what another command did to the timer is seen.
constexpr Base::Seconds kBetweenLooks{60};

struct Look {
    std::vector<Timer> timers{};
    std::size_t at{}; // the one that is waited for
};

// The store is given up again at once: whoever waits must not keep others from their data.
Result<Look> lookFor(const Session &session, const std::string &id, Base::Instant now)
{
    KEST_TRY(auto store, session.openStore());
    Look look;
    KEST_TRY(look.timers, timersIn(store));
    KEST_TRY(look.at, findTimer(look.timers, id));
    Timer &timer = look.timers[look.at];
    if (!KestCore::countsDown(timer.state)) {
        return std::unexpected(KestError::invalidData("A stopwatch never ends."));
    }
    KEST_CHECK(followClock(store, {&timer, 1}, now));
    return look;
}

// Sleeps on the wall clock itself, so that a suspend and a clock that is set are slept
// through rightly. A signal wakes it early.
void sleepUntil(Base::Instant instant)
{
    // A little late: woken a rounding too early, it would only have to sleep again.
    const double seconds = Base::seconds1970(instant) + 0.001;
    const double whole = std::floor(seconds);
    timespec until{};
    until.tv_sec = static_cast<std::time_t>(whole);
    until.tv_nsec = static_cast<long>((seconds - whole) * 999'999'999);
    clock_nanosleep(CLOCK_REALTIME, TIMER_ABSTIME, &until, nullptr);
}

} // namespace

Result<void> waitForTimer(const Session &session, const std::string &typed)
{
    std::string id = typed;
    std::optional<Base::Instant> awaited;
    while (true) {
        const Base::Instant now = Base::wallClock();
        KEST_TRY(const Look look, lookFor(session, id, now));
        const Timer &timer = look.timers[look.at];
        id = timer.record.id; // whole: another timer may come to begin like it
        // The application may have started the next round before this look.
        const bool isNextRound =
            awaited && timer.state.running && timer.state.started.value_or(now) >= *awaited;
        if (isNextRound || KestCore::hasEnded(timer.state, now)) {
            return answerTimers(session.console, {&timer, 1}, look.timers, now);
        }
        awaited = timer.state.running ? timer.state.deadline : std::nullopt;
        const Base::Instant nextLook = now + kBetweenLooks;
        sleepUntil(awaited ? std::min(*awaited, nextLook) : nextLook);
    }
}

} // namespace Cli
