// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorAnswers.h"
#include "cli/MonitorSampler.h"
#include "cli/NumberOption.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace Cli
{

namespace
{

constexpr double kOnceSeconds = 1;
constexpr double kRecordSeconds = 10;
constexpr double kMostHistoryHours = 31 * 24;
constexpr double kMostAlertHours = 24; // minutes are kept for so long

// Samples one after the other on standard output; each has an interval that its rates are of.
Result<void> runSamples(const Session &session, const LiveArguments &args)
{
    const StopSignals signals;
    MonitorSampler sampler;
    sampler.sample(); // where every rate begins
    for (std::int64_t done = 0; !args.count || done < *args.count; ++done) {
        if (signals.cameWithin(args.interval)) {
            return {};
        }
        KEST_CHECK(answerSnapshot(session.console, sampler.sample()));
        KEST_CHECK(Console::flush()); // who follows wants each line at once
    }
    return {};
}

struct Arguments {
    bool isOnce = false;
    std::optional<double> interval{};
    std::optional<std::int64_t> count{};
    SeriesArguments series{};
    double alertHours = 24;
};

Result<void> runMonitor(const Session &session, const Arguments &args)
{
    if (args.isOnce) {
        return runSamples(session,
                          {.interval = args.interval.value_or(kOnceSeconds), .count = 1});
    }
    const LiveArguments live{.interval = args.interval.value_or(LiveArguments{}.interval),
                             .count = args.count};
    const bool isForPrograms = session.console.isJson || args.count.has_value();
    return isForPrograms ? runSamples(session, live) : runMonitorView(live);
}

// Gives the option for the number of samples.
CLI::Option *addPace(CLI::App *command, const std::shared_ptr<Arguments> &args)
{
    addNumber(command, "--interval", [args](double seconds) { args->interval = seconds; },
              "Seconds between two samples, 0.2 to 60", {kShortestPace, kLongestPace});
    return command->add_option("--count", args->count, "Ends after so many samples")
        ->check(CLI::PositiveNumber);
}

void addRecord(CLI::App *monitor, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *record = monitor->add_subcommand("record", "Records the history until stopped");
    addPace(record, args);
    record->callback([=, &session] {
        session.command = [=, &session] {
            return runMonitorRecord(
                session,
                {.interval = args->interval.value_or(kRecordSeconds), .count = args->count});
        };
    });
}

void addHistory(CLI::App *monitor, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *history = monitor->add_subcommand("history", "Shows what was recorded");
    SeriesArguments &series = args->series;
    history->add_option("METRIC", series.metric, "Such as cpu, memoryUsed or download")
        ->required();
    history->add_option("--app", series.app, "Of one application, by its key");
    CLI::Option *from = history->add_option("--from", series.from, "Not before this instant");
    history->add_option("--to", series.to, "Not after this instant, instead of now");
    addNumber(history, "--hours", [args](double hours) { args->series.hours = hours; },
              "So many hours, instead of 24", {0, kMostHistoryHours})
        ->excludes(from);
    history->callback([=, &session] {
        session.command = [=, &session] { return runMonitorHistory(session, args->series); };
    });
}

void addAlerts(CLI::App *monitor, Session &session, const std::shared_ptr<Arguments> &args)
{
    CLI::App *alerts =
        monitor->add_subcommand("alerts", "Lists loads that lasted and memory that grew");
    addNumber(alerts, "--hours", [args](double hours) { args->alertHours = hours; },
              "In the last so many hours, 24 at most", {0, kMostAlertHours});
    alerts->callback([=, &session] {
        session.command = [=, &session] { return runMonitorAlerts(session, args->alertHours); };
    });
}

} // namespace

void addMonitorCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *monitor = program.add_subcommand("monitor", "Shows what this machine is doing");
    monitor->require_subcommand(0, 1);
    CLI::Option *once =
        monitor->add_flag("--once", args->isOnce, "Prints one sample, taken over a second");
    CLI::Option *count = addPace(monitor, args);
    once->excludes(count);
    monitor->callback([=, &session] {
        const bool isLive = monitor->get_subcommands().empty();
        const bool hasOptions =
            once->count() + count->count() + monitor->get_option("--interval")->count() > 0;
        if (!isLive && hasOptions) {
            throw CLI::ValidationError("monitor",
                                       "Options stand behind the command they are of");
        }
        if (isLive) {
            session.command = [=, &session] { return runMonitor(session, *args); };
        }
    });
    addRecord(monitor, session, args);
    addHistory(monitor, session, args);
    addAlerts(monitor, session, args);
}

} // namespace Cli
