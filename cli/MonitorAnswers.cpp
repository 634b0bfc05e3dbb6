// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/MonitorAnswers.h"

#include "Base/JsonWriter.h"
#include "cli/MonitorText.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

template Base::Result<std::string> Base::json::encode(const Cli::SnapshotAnswer &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::PointAnswer> &);
template Base::Result<std::string> Base::json::encode(const std::vector<Cli::AlertAnswer> &);
template Base::Result<std::string> Base::json::encode(const Cli::RecordAnswer &);

namespace Cli
{

namespace
{

using MonitorCore::AppUsage;
using MonitorCore::MetricState;
using MonitorCore::MetricUnit;
using MonitorCore::MonitorSnapshot;

constexpr std::size_t kMostApps = 12;
constexpr int kNameCells = 32;

Result<SnapshotAnswer> answerOf(const MonitorSnapshot &snapshot)
{
    SnapshotAnswer answer{.uptime = snapshot.uptime,
                          .interval = snapshot.interval,
                          .apps = snapshot.apps,
                          .accessories = snapshot.accessories,
                          .restrictedProcessCount = snapshot.restrictedProcessCount};
    KEST_TRY(answer.timestamp, Base::toIso8601(snapshot.timestamp));
    for (const auto &[metric, reading] : snapshot.readings) {
        ReadingAnswer &one = answer.readings[metric];
        one = {.value = reading.value,
               .unit = reading.unit,
               .source = reading.source,
               .state = reading.state,
               .detail = reading.detail};
        KEST_TRY(one.timestamp, Base::toIso8601(reading.timestamp));
    }
    return answer;
}

void printReadings(const Console &console, const MonitorSnapshot &snapshot)
{
    std::vector<std::vector<std::string>> rows;
    for (const auto &[metric, reading] : snapshot.readings) {
        const bool hasNumber = reading.state == MetricState::available;
        auto &row = rows.emplace_back(std::vector{
            std::string{metricTitle(metric)},
            console.styled(readingText(reading), hasNumber ? Style::strong : Style::faint)});
        if (reading.detail && !reading.detail->empty()) {
            row.push_back(console.styled(printable(*reading.detail), Style::faint));
        }
    }
    for (const auto &accessory : snapshot.accessories) {
        rows.push_back({printable(accessory.name),
                        console.styled(amountText(accessory.percent, MetricUnit::percent),
                                       Style::strong)});
    }
    console.table(rows);
}

void printApps(const Console &console, const MonitorSnapshot &snapshot)
{
    std::vector<const AppUsage *> apps;
    for (const AppUsage &app : snapshot.apps) {
        apps.push_back(&app);
    }
    std::ranges::stable_sort(apps, std::greater{}, [](const AppUsage *app) {
        return std::pair{app->cpu, app->memory};
    });
    apps.resize(std::min(apps.size(), kMostApps));
    const auto rate = [](double bytes) {
        return fmt::format("{:>10}", amountText(bytes, MetricUnit::bytesPerSecond));
    };
    std::vector<std::vector<std::string>> rows{{fitted("Application", kNameCells),
                                                "of one core", "   Memory", "Disk, read",
                                                "   written"}};
    for (std::string &head : rows.front()) {
        head = console.styled(head, Style::faint);
    }
    for (const AppUsage *app : apps) {
        rows.push_back({fitted(printable(app->name), kNameCells),
                        fmt::format("{:>11}", amountText(app->cpu, MetricUnit::percent)),
                        fmt::format("{:>9}", amountText(app->memory, MetricUnit::bytes)),
                        rate(app->diskRead), rate(app->diskWrite)});
    }
    console.line("");
    console.table(rows);
}

} // namespace

Result<void> answerSnapshot(const Console &console, const MonitorSnapshot &snapshot)
{
    KEST_TRY(const SnapshotAnswer answer, answerOf(snapshot));
    return console.answer(answer, [&] {
        printReadings(console, snapshot);
        printApps(console, snapshot);
        console.line("");
        console.line(fmt::format("Up {}", spanText(snapshot.uptime)));
        if (const auto hidden = snapshot.restrictedProcessCount; hidden > 0) {
            console.line(
                fmt::format("Processes whose disk traffic may not be seen: {}", hidden));
        }
    });
}

Result<std::vector<PointAnswer>> answersOf(const std::vector<MonitorCore::HistoryPoint> &points)
{
    std::vector<PointAnswer> answers;
    for (const auto &point : points) {
        PointAnswer &answer = answers.emplace_back(PointAnswer{.value = point.value,
                                                               .peak = point.peak,
                                                               .coverage = point.coverage,
                                                               .resolution = point.resolution});
        KEST_TRY(answer.date, Base::toIso8601(point.date));
    }
    return answers;
}

} // namespace Cli
