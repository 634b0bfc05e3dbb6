// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/TimerAnswers.h"

#include "KestCore/Models/RecordIds.h"
#include "cli/Answers.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace Cli
{

namespace
{

using KestCore::Timer;

TimerAnswer answerOf(const Timer &timer, Base::Instant now)
{
    const auto &state = timer.state;
    TimerAnswer answer{.id = timer.record.id,
                       .title = timer.record.title,
                       .mode = state.mode,
                       .remaining = std::round(KestCore::remaining(state, now) * 1000) / 1000,
                       .running = state.running,
                       .ended = KestCore::hasEnded(state, now)};
    if (state.running && state.deadline) {
        // One in the year 10000 or later has no such text.
        if (auto text = Base::toIso8601(*state.deadline)) {
            answer.deadline = *std::move(text);
        }
    }
    return answer;
}

// "1:05:00". What is left is rounded up, so that it says 0 only when it is over.
std::string clockText(const Timer &timer, Base::Instant now)
{
    constexpr double kMost = 3.6e12; // a number from elsewhere may fit no integer
    const double exact = std::min(KestCore::remaining(timer.state, now), kMost);
    const auto seconds = static_cast<std::int64_t>(
        KestCore::countsDown(timer.state) ? std::ceil(exact) : std::floor(exact));
    return fmt::format("{}:{:02}:{:02}", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

std::string stateText(const Console &console, const Timer &timer, Base::Instant now)
{
    if (KestCore::hasEnded(timer.state, now)) {
        return console.styled("ended", Style::warning);
    }
    if (timer.state.running) {
        return console.styled("running", Style::good);
    }
    return timer.state.elapsed == 0 ? "ready" : "paused";
}

} // namespace

Result<std::vector<Timer>> timersIn(KestCore::StateStore &store)
{
    KEST_TRY(const auto records, store.recordsOfKind("timer"));
    return KestCore::timersOf(records);
}

Result<void> followClock(KestCore::StateStore &store, std::span<Timer> timers,
                         Base::Instant now)
{
    KEST_TRY(auto changed, KestCore::followClock(timers, now));
    if (changed.empty()) {
        return {};
    }
    return store.changeRecords({.written = std::move(changed)});
}

Result<std::size_t> findTimer(std::span<const Timer> timers, std::string_view typed)
{
    return KestCore::findByIdPrefix(KestCore::idsOf(timers, &Timer::record), typed, "timer");
}

Result<void> answerTimers(const Console &console, std::span<const Timer> shown,
                          std::span<const Timer> all, Base::Instant now)
{
    std::vector<TimerAnswer> answers;
    for (const Timer &timer : shown) {
        answers.push_back(answerOf(timer, now));
    }
    return console.answer(answers, [&] {
        const std::size_t idLength =
            KestCore::shortIdLength(KestCore::idsOf(all, &Timer::record));
        std::vector<std::vector<std::string>> rows;
        for (const Timer &timer : shown) {
            rows.push_back(
                {console.styled(printable(timer.record.id.substr(0, idLength)), Style::faint),
                 fmt::format("{:>9}", clockText(timer, now)), stateText(console, timer, now),
                 console.styled(printable(timer.record.title), Style::strong)});
        }
        console.table(rows);
    });
}

} // namespace Cli
