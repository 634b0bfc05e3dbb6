// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/AppAggregator.h"
#include "MonitorCore/HistoryItems.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "bench/Bench.h"
#include "bench/RawHistory.h"

#include <fmt/format.h>

#include <algorithm>

namespace Bench
{

namespace
{

using MonitorCore::MetricID;
using MonitorCore::MonitorHistoryStore;

constexpr double kStart = 1'699'920'000; // a midnight
constexpr double kDay = 86'400;
constexpr std::string_view kApp = "org.example.Application7";

// A machine with so many applications, all of them busy, so that everything is kept.
MonitorCore::MonitorSnapshot busySnapshot(int apps)
{
    MonitorCore::MonitorSnapshot snapshot{.interval = 10};
    for (const auto &[metric, text] : enumTexts(Base::Of<MetricID>{})) {
        snapshot.readings[metric] = {.value = 12.5,
                                     .state = MonitorCore::MetricState::available};
    }
    for (int n = 0; n < apps; ++n) {
        snapshot.apps.push_back({.id = fmt::format("org.example.Application{}", n),
                                 .cpu = 10.0 + n,
                                 .memory = 2e8,
                                 .diskRead = 3e5,
                                 .diskWrite = 3e5,
                                 .download = 3e5,
                                 .upload = 3e5,
                                 .energy = 12});
    }
    return snapshot;
}

// The rows of one sample that lies within a minute.
std::vector<RawHistory::Row> rowsOf(const MonitorCore::MonitorSnapshot &snapshot)
{
    std::vector<RawHistory::Row> rows;
    for (const auto &item : MonitorCore::historyItems(snapshot, {}, {})) {
        const auto start = static_cast<std::int64_t>(item.end - item.duration);
        rows.push_back({.bucket = start / 60 * 60,
                        .app = item.app,
                        .metric = Base::textOf(item.metric),
                        .value = item.value,
                        .covered = item.duration});
    }
    return rows;
}

Row recordRow()
{
    const auto folder = freshFolder("monitor");
    const auto file = folder / "history.sqlite";
    auto store = must(MonitorHistoryStore::open(file));
    RawHistory raw{folder / "raw.sqlite"};
    auto snapshot = busySnapshot(100);
    snapshot.timestamp = Base::fromSeconds1970(kStart + 10);
    std::vector<RawHistory::Row> rows;
    const Pair seconds = measureByTurns(
        300, [&] { must(store.record(snapshot)); }, [&] { raw.insert(rows); },
        [&] { // the floor gets the sample just recorded; then comes the next one
            rows = rowsOf(snapshot);
            snapshot.timestamp += Base::Seconds{10};
        });
    if (raw.contents() != RawHistory{file}.contents()) {
        giveUp("the floor's history is not the one that was recorded");
    }
    return ratioRow("record a sample of 100 applications", seconds, 1.3);
}

// One day of twenty busy applications, a sample a minute.
void recordDay(MonitorHistoryStore &store)
{
    auto snapshot = busySnapshot(20);
    for (double time = kStart + 60; time <= kStart + kDay; time += 60) {
        snapshot.timestamp = Base::fromSeconds1970(time);
        must(store.record(snapshot));
    }
}

void readDay(MonitorHistoryStore &store)
{
    const auto series = must(store.history(kApp, MetricID::cpu, Base::fromSeconds1970(kStart),
                                           Base::fromSeconds1970(kStart + kDay)));
    if (series.size() != 1'440) {
        giveUp("the day is not whole");
    }
}

// As a chart reads it that is on show, and as one does that was just opened.
std::vector<Row> daySeriesRows()
{
    const auto file = freshFolder("series") / "history.sqlite";
    auto store = must(MonitorHistoryStore::open(file));
    recordDay(store);
    RawHistory raw{file};
    const auto readRaw = [&] { raw.readSeries(kApp, "cpu"); };
    const auto openAndRead = [&] {
        auto fresh = must(MonitorHistoryStore::openToRead(file));
        readDay(fresh);
    };
    return {durationRow("read one day's series of an application",
                        measureByTurns(
                            200, [&] { readDay(store); }, readRaw),
                        0.005),
            durationRow("the same of a history opened for it",
                        measureByTurns(50, openAndRead, readRaw), 0.020)};
}

// Four hundred processes, half of them with a control group that names an application, the
// others five deep below one without. The floor is a copy of them: the grouping is given one.
Row groupRow()
{
    std::vector<MonitorCore::ProcessSample> processes;
    std::vector<MonitorCore::ProcessOrigin> origins;
    for (int n = 0; n < 400; ++n) {
        const bool isNamed = n % 2 == 0;
        processes.push_back({.key = {.pid = n + 1, .start = static_cast<std::uint64_t>(n)},
                             .parentPID = isNamed || n % 10 == 1 ? 0 : n - 1,
                             .name = fmt::format("process-{}", n),
                             .executable = fmt::format("/usr/lib/example/program-{}", n % 60),
                             .directory = "/home/somebody/projects"});
        origins.push_back(
            {.cgroup = fmt::format("/user.slice/user-1000.slice/user@1000.service/app.slice/"
                                   "{}-{}.scope",
                                   isNamed ? "app-gnome-org.example.App" : "run", n % 40)});
    }
    const MonitorCore::AppAggregator aggregator;
    const Pair seconds = measureByTurns(
        300, [&] { (void)aggregator.aggregate(processes, origins); },
        [&] { (void)std::vector{processes}; });
    return durationRow("group 400 processes into applications", seconds, 0.001);
}

} // namespace

std::vector<Row> monitorSuite()
{
    std::vector<Row> rows{recordRow(), groupRow()};
    std::ranges::move(daySeriesRows(), std::back_inserter(rows));
    return rows;
}

} // namespace Bench
