// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/TimerList.h"

#include "Base/Uuid.h"
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Tools/Texts.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace KestCore
{

namespace
{

constexpr std::string_view kKind = "timer";

KestError refusal(std::string_view message)
{
    return KestError::invalidData(std::string{message});
}

// "Focus", or "Focus 2" and so on while a timer has that title.
std::string freeTitle(std::string_view title, std::span<const Timer> existing)
{
    std::string free{title};
    for (int number = 2; std::ranges::any_of(
             existing, [&](const Timer &timer) { return timer.record.title == free; });
         ++number) {
        free = std::string{title} + " " + std::to_string(number);
    }
    return free;
}

Base::Instant endOf(const TimerState &timer, Base::Instant now)
{
    return timer.deadline.value_or(now);
}

bool awaitsItsEnd(const TimerState &timer)
{
    return timer.running && countsDown(timer) && !timer.notified;
}

// Sorts before another by group, then by its end.
std::tuple<int, double> placeInList(const TimerState &timer)
{
    if (!timer.running) {
        return {2, 0};
    }
    return countsDown(timer)
               ? std::tuple{0, timer.deadline ? Base::seconds1970(*timer.deadline) : 0}
               : std::tuple{1, 0.0};
}

Result<LocalRecord> completionOf(const Timer &timer, Base::Instant now)
{
    // Stored numbers may be of any size; these count whole seconds and milliseconds exactly.
    constexpr double kMost = 9e15;
    const double endedAt = Base::milliseconds1970(endOf(timer.state, now));
    const Completion completion{.tool = "timers",
                                .item = timer.state.mode,
                                .amount =
                                    std::llround(std::clamp(timer.state.duration, 0.0, kMost)),
                                .completedAt = std::clamp(endedAt, -kMost, kMost)};
    KEST_TRY(std::string body, json::encode(completion));
    return LocalRecord{.id = Base::makeUuid(),
                       .kind = "completion",
                       .title = timer.record.title,
                       .body = std::move(body),
                       .updated = Base::milliseconds1970(now)};
}

Result<void> announce(Timer &timer, const NativeState &state, Base::Instant now,
                      TimerSettlement &settlement)
{
    if (state.devotional.preferences.historyEnabled) {
        KEST_TRY(auto completion, completionOf(timer, now));
        settlement.written.push_back(std::move(completion));
    }
    if (settingIsTrue(state.settings, "timers.notifications")) {
        settlement.notifications.push_back({.id = "timer-" + timer.record.id,
                                            .title = "Velvetnook timer",
                                            .body = timer.record.title + " finished."});
    }
    timer.state.notified = true;
    return {};
}

// A record from elsewhere may have no length to speak of, and would come due for ever.
bool canRepeat(const TimerState &timer) { return timer.duration >= kShortestTimer; }

Result<void> handleEnd(Timer &timer, const NativeState &state, Base::Instant now,
                       TimerSettlement &settlement)
{
    followClock(timer.state, now);
    if (!timer.state.running || !hasEnded(timer.state, now)) {
        return {};
    }
    if (awaitsItsEnd(timer.state)) {
        KEST_CHECK(announce(timer, state, now, settlement));
    }
    if (canRepeat(timer.state)) {
        repeatHydration(timer.state, now);
    }
    return {};
}

} // namespace

Result<std::vector<Timer>> timersOf(std::span<const LocalRecord> records)
{
    std::vector<Timer> timers;
    for (const LocalRecord &record : records) {
        auto state = json::decode<TimerState>(std::string_view{record.body});
        if (!state) {
            return std::unexpected(refusal("Invalid timer"));
        }
        timers.push_back({.record = record, .state = *std::move(state)});
    }
    return timers;
}

Result<LocalRecord> savedTimer(const Timer &timer, Base::Instant now)
{
    LocalRecord record = timer.record;
    KEST_TRY(record.body, json::encode(timer.state));
    record.updated = Base::milliseconds1970(now);
    return record;
}

void sortForList(std::vector<Timer> &timers)
{
    std::vector<std::tuple<int, double, std::size_t>> order;
    for (const Timer &timer : timers) {
        order.push_back(std::tuple_cat(placeInList(timer.state), std::tuple{order.size()}));
    }
    std::ranges::sort(order);
    std::vector<Timer> sorted;
    for (const auto &[group, end, at] : order) {
        sorted.push_back(std::move(timers[at]));
    }
    timers = std::move(sorted);
}

Result<Timer> makeTimer(const NewTimer &wanted, std::span<const Timer> existing,
                        const Settings &settings, Base::Instant now)
{
    const std::string_view mode = Base::textOf(wanted.mode);
    if (wanted.minutes && wanted.mode == TimerMode::stopwatch) {
        return std::unexpected(refusal("A stopwatch has no length."));
    }
    const double minutes = wanted.minutes.value_or(configuredMinutes(mode, settings));
    if (!(minutes >= 1 && minutes <= kMostTimerMinutes)) {
        return std::unexpected(refusal(kTimerLimits));
    }
    KEST_TRY(std::string title, checkedTitle(wanted.title));
    if (title.empty()) {
        title = freeTitle(displayTitle(mode), existing);
    }
    Timer timer{.record = {.id = Base::makeUuid(),
                           .kind = std::string{kKind},
                           .title = std::move(title)},
                .state = newTimer(mode, minutes * 60)};
    start(timer.state, now);
    KEST_TRY(timer.record, savedTimer(timer, now));
    return timer;
}

void followClock(TimerState &timer, Base::Instant now)
{
    // Rounding, and a clock that is only kept in step, are no reason to begin anew.
    constexpr double kTolerance = 1;
    if (!timer.running) {
        return;
    }
    if (countsDown(timer) && timer.notified) {
        timer.deadline = std::min(endOf(timer, now), now);
        return;
    }
    const double leftAtStart = std::max(timer.duration - timer.elapsed, 0.0);
    const bool hasTooMuchLeft = countsDown(timer)
                                    ? remaining(timer, now) > leftAtStart + kTolerance
                                    : (timer.started.value_or(now) - now).count() > kTolerance;
    if (hasTooMuchLeft) {
        timer.running = false;
        start(timer, now);
    }
}

Result<std::vector<LocalRecord>> followClock(std::span<Timer> timers, Base::Instant now)
{
    std::vector<LocalRecord> changed;
    for (Timer &timer : timers) {
        const TimerState before = timer.state;
        followClock(timer.state, now);
        if (timer.state != before) {
            KEST_TRY(timer.record, savedTimer(timer, now));
            changed.push_back(timer.record);
        }
    }
    return changed;
}

void resumeTimer(TimerState &timer, Base::Instant now)
{
    followClock(timer, now);
    if (hasEnded(timer, now)) {
        pause(timer, now);
        timer.notified = true;
    }
    start(timer, now);
}

void pauseTimer(TimerState &timer, Base::Instant now)
{
    followClock(timer, now);
    if (!hasEnded(timer, now)) {
        pause(timer, now);
    }
}

Result<void> adjustTimer(TimerState &timer, Base::Instant now, double seconds)
{
    TimerState next = timer;
    followClock(next, now);
    KEST_CHECK(adjust(next, now, seconds));
    timer = std::move(next);
    return {};
}

std::vector<TimerEnd> timerSchedule(std::span<const Timer> timers, Base::Instant now)
{
    std::vector<TimerEnd> ends;
    for (Timer timer : timers) {
        followClock(timer.state, now);
        if (awaitsItsEnd(timer.state)) {
            ends.push_back({.at = endOf(timer.state, now), .timerId = timer.record.id});
        }
    }
    std::ranges::sort(ends, {},
                      [](const TimerEnd &end) { return std::tie(end.at, end.timerId); });
    return ends;
}

Result<TimerSettlement> settleTimers(std::span<const Timer> timers, const NativeState &state,
                                     Base::Instant now)
{
    std::vector<Timer> sorted{timers.begin(), timers.end()};
    std::ranges::sort(sorted, {}, [&](const Timer &timer) {
        return std::tuple{endOf(timer.state, now), std::string_view{timer.record.id}};
    });
    TimerSettlement settlement;
    for (Timer &timer : sorted) {
        const TimerState before = timer.state;
        KEST_CHECK(handleEnd(timer, state, now, settlement));
        if (timer.state != before) {
            KEST_TRY(auto record, savedTimer(timer, now));
            settlement.written.push_back(std::move(record));
        }
    }
    return settlement;
}

Result<std::vector<LocalRecord>> settleTimer(Timer &timer, const NativeState &state,
                                             Base::Instant now)
{
    TimerSettlement settlement;
    KEST_CHECK(handleEnd(timer, state, now, settlement));
    return std::move(settlement.written);
}

} // namespace KestCore
