// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Text.h"
#include "cli/TimerAnswers.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cmath>
#include <limits>
#include <memory>

namespace Cli
{

namespace
{

using KestCore::StateStore;
using KestCore::Timer;
using KestCore::TimerMode;
using KestCore::TimerState;

struct Arguments {
    std::string id{};
    std::string mode{};
    std::optional<std::string> minutes{};
    std::string title{};
    std::string seconds{};
};

// What is no number at all fails where a length outside the limits does.
double lengthFrom(std::string_view text)
{
    return Base::numberFrom<double>(text).value_or(std::numeric_limits<double>::quiet_NaN());
}

Result<TimerMode> modeFrom(std::string_view text)
{
    if (const auto mode = Base::fromText<TimerMode>(text)) {
        return *mode;
    }
    std::vector<std::string_view> modes;
    for (const auto &[mode, known] : enumTexts(Base::Of<TimerMode>{})) {
        modes.push_back(known);
    }
    return std::unexpected(KestError::invalidData(fmt::format(
        "There is no timer \"{}\"; choose one of {}", text, fmt::join(modes, ", "))));
}

Result<void> runList(const Session &session)
{
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(auto timers, timersIn(store));
    const Base::Instant now = Base::wallClock();
    KEST_CHECK(followClock(store, timers, now));
    KestCore::sortForList(timers);
    KEST_CHECK(answerTimers(session.console, timers, timers, now));
    if (timers.empty() && !session.console.isJson) {
        session.console.line("No timers; kest timer start countdown starts one.");
    }
    return {};
}

Result<void> runStart(const Session &session, const Arguments &args)
{
    KestCore::NewTimer wanted{.title = args.title};
    KEST_TRY(wanted.mode, modeFrom(args.mode));
    if (args.minutes) {
        wanted.minutes = lengthFrom(*args.minutes);
    }
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(auto timers, timersIn(store));
    const Base::Instant now = Base::wallClock();
    KEST_TRY(const Timer timer,
             KestCore::makeTimer(wanted, timers, store.state().settings, now));
    KEST_CHECK(store.changeRecords({.written = {timer.record}}));
    timers.push_back(timer);
    return answerTimers(session.console, {&timer, 1}, timers, now);
}

using Change = std::function<Result<void>(TimerState &, Base::Instant now)>;

// What a step does with an end that nobody announced yet.
enum class PastEnd : std::uint8_t { settled, left };

Result<void> runChange(const Session &session, const std::string &id, PastEnd pastEnd,
                       const Change &change)
{
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(auto timers, timersIn(store));
    KEST_TRY(const std::size_t at, findTimer(timers, id));
    Timer &timer = timers[at];
    const TimerState before = timer.state;
    const Base::Instant now = Base::wallClock();
    std::vector<KestCore::LocalRecord> written;
    if (pastEnd == PastEnd::settled) {
        KEST_TRY(written, KestCore::settleTimer(timer, store.state(), now));
    }
    KEST_CHECK(change(timer.state, now));
    if (timer.state != before) {
        KEST_TRY(timer.record, KestCore::savedTimer(timer, now));
        written.push_back(timer.record);
        KEST_CHECK(store.changeRecords({.written = std::move(written)}));
    }
    return answerTimers(session.console, {&timer, 1}, timers, now);
}

Result<void> runRemove(const Session &session, const std::string &id)
{
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(const auto timers, timersIn(store));
    KEST_TRY(const std::size_t at, findTimer(timers, id));
    const Timer &removed = timers[at];
    const Base::Instant now = Base::wallClock();
    Timer settled = removed;
    KEST_TRY(auto written, KestCore::settleTimer(settled, store.state(), now));
    KEST_CHECK(
        store.changeRecords({.written = std::move(written), .removed = {removed.record.id}}));
    if (!session.console.isJson) {
        session.console.line(fmt::format("Removed {}", printable(removed.record.title)));
        return {};
    }
    return answerTimers(session.console, {&removed, 1}, timers, now);
}

using Run = std::function<Result<void>(const Session &, const Arguments &)>;

// A subcommand that works on one timer.
CLI::App *addOnTimer(CLI::App *timer, Session &session, const std::shared_ptr<Arguments> &args,
                     const char *name, const char *help, const Run &run)
{
    CLI::App *command = timer->add_subcommand(name, help);
    command->add_option("ID", args->id, "As timer list shows it, or the whole id")->required();
    command->callback(
        [=, &session] { session.command = [=, &session] { return run(session, *args); }; });
    return command;
}

void addStart(CLI::App *timer, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *start = timer->add_subcommand("start", "Starts a new timer");
    start->add_option("MODE", args->mode, "pomodoro, countdown, stopwatch or hydration")
        ->required();
    start->add_option("--minutes", args->minutes, "Its length, in place of the settings'");
    start->add_option("--title", args->title, "What it is called");
    start->callback([=, &session] {
        session.command = [=, &session] { return runStart(session, *args); };
    });
}

void addChanges(CLI::App *timer, Session &session, const std::shared_ptr<Arguments> &args)
{
    const auto change = [](PastEnd pastEnd, const Change &step) -> Run {
        return [=](const Session &s, const Arguments &a) {
            return runChange(s, a.id, pastEnd, step);
        };
    };
    addOnTimer(timer, session, args, "pause", "Pauses a timer",
               change(PastEnd::left, [](TimerState &state, Base::Instant now) -> Result<void> {
                   KestCore::pauseTimer(state, now);
                   return {};
               }));
    addOnTimer(
        timer, session, args, "resume", "Goes on with a timer, or starts it over",
        change(PastEnd::settled, [](TimerState &state, Base::Instant now) -> Result<void> {
            KestCore::resumeTimer(state, now);
            return {};
        }));
    const auto adjust = [](const Session &s, const Arguments &a) {
        return runChange(s, a.id, PastEnd::settled, [&](TimerState &state, Base::Instant now) {
            return KestCore::adjustTimer(state, now, lengthFrom(a.seconds));
        });
    };
    addOnTimer(timer, session, args, "adjust", "Sets the time left", adjust)
        ->add_option("SECONDS", args->seconds, "From 60 to 31536000")
        ->required();
    addOnTimer(timer, session, args, "remove", "Removes a timer",
               [](const Session &s, const Arguments &a) { return runRemove(s, a.id); });
    addOnTimer(timer, session, args, "wait", "Waits until a timer has ended",
               [](const Session &s, const Arguments &a) { return waitForTimer(s, a.id); });
}

} // namespace

void addTimerCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *timer = program.add_subcommand("timer", "Lists, starts and changes timers");
    timer->require_subcommand(0, 1);
    timer->callback([=, &session] {
        if (timer->get_subcommands().empty()) {
            session.command = [&session] { return runList(session); };
        }
    });
    timer->add_subcommand("list", "Lists the timers, soonest end first")->callback([&session] {
        session.command = [&session] { return runList(session); };
    });
    addStart(timer, session, args);
    addChanges(timer, session, args);
}

} // namespace Cli
