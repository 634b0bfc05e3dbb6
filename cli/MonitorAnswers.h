// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorAlertRules.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "cli/Console.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

// What the monitor's commands answer with: its records, with instants as texts.
namespace Cli
{

namespace json = Base::json;
using Base::Of;

struct ReadingAnswer {
    std::optional<double> value{};
    MonitorCore::MetricUnit unit{};
    std::string source{};
    MonitorCore::MetricState state{};
    std::string timestamp{};
    std::optional<std::string> detail{};
};
consteval auto jsonFields(Of<ReadingAnswer>)
{
    using R = ReadingAnswer;
    return std::tuple{
        json::Field{"value", &R::value},         json::Field{"unit", &R::unit},
        json::Field{"source", &R::source},       json::Field{"state", &R::state},
        json::Field{"timestamp", &R::timestamp}, json::Field{"detail", &R::detail}};
}
static_assert(json::coversAllMembers<ReadingAnswer>());

// Of monitor.
struct SnapshotAnswer {
    std::string timestamp{};
    double uptime{};
    double interval{};
    std::map<MonitorCore::MetricID, ReadingAnswer> readings{};
    std::vector<MonitorCore::AppUsage> apps{};
    std::vector<MonitorCore::AccessoryBattery> accessories{};
    std::int64_t restrictedProcessCount{};
};
consteval auto jsonFields(Of<SnapshotAnswer>)
{
    using R = SnapshotAnswer;
    return std::tuple{json::Field{"timestamp", &R::timestamp},
                      json::Field{"uptime", &R::uptime},
                      json::Field{"interval", &R::interval},
                      json::Field{"readings", &R::readings},
                      json::Field{"apps", &R::apps},
                      json::Field{"accessories", &R::accessories},
                      json::Field{"restrictedProcessCount", &R::restrictedProcessCount}};
}
static_assert(json::coversAllMembers<SnapshotAnswer>());

// Of monitor history: a list of these.
struct PointAnswer {
    std::string date{};
    double value{};
    double peak{};
    double coverage{};
    std::int64_t resolution{};
    std::optional<std::vector<MonitorCore::HistoryCause>> causes{}; // of the highest point
};
consteval auto jsonFields(Of<PointAnswer>)
{
    using R = PointAnswer;
    return std::tuple{json::Field{"date", &R::date},
                      json::Field{"value", &R::value},
                      json::Field{"peak", &R::peak},
                      json::Field{"coverage", &R::coverage},
                      json::Field{"resolution", &R::resolution},
                      json::Field{"causes", &R::causes}};
}
static_assert(json::coversAllMembers<PointAnswer>());

// Of monitor alerts: a list of these.
struct AlertAnswer {
    std::string id{};
    std::string appID{};
    std::string title{};
    std::string detail{};
    std::string date{}; // when the condition had held for long enough
};
consteval auto jsonFields(Of<AlertAnswer>)
{
    using R = AlertAnswer;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"appID", &R::appID},
                      json::Field{"title", &R::title}, json::Field{"detail", &R::detail},
                      json::Field{"date", &R::date}};
}
static_assert(json::coversAllMembers<AlertAnswer>());

// Of monitor record.
struct RecordAnswer {
    std::int64_t samples{};
    std::string file{};
};
consteval auto jsonFields(Of<RecordAnswer>)
{
    return std::tuple{json::Field{"samples", &RecordAnswer::samples},
                      json::Field{"file", &RecordAnswer::file}};
}
static_assert(json::coversAllMembers<RecordAnswer>());

// One whole sample, as JSON or as tables of the machine and of what uses it most.
[[nodiscard]] Result<void> answerSnapshot(const Console &console,
                                          const MonitorCore::MonitorSnapshot &snapshot);

[[nodiscard]] Result<std::vector<PointAnswer>>
answersOf(const std::vector<MonitorCore::HistoryPoint> &points);

} // namespace Cli
