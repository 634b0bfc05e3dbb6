// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorAlertRules.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "Velvetnook/Application/Monitor/MonitorTools.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

// What one sample is for.
struct MonitorJob {
    MonitorCore::SampleScope scope{};
    MonitorCore::MonitorPreferences preferences{};
    bool records{};
    bool watches{}; // for alerts
    Base::Instant now{};
};

struct MonitorReport {
    std::shared_ptr<const MonitorCore::MonitorSnapshot> snapshot{};
    std::vector<MonitorCore::MonitorAlert> alerts{};
    std::string problem{}; // why nothing is recorded; empty: it is, or need not be
    std::string notice{};  // what the user should be told once
};

// One step of a chart, wide enough to be seen.
struct ChartColumn {
    double at{}; // 0 to 1, its middle
    double mean{};
    double peak{};
    MonitorCore::HistoryPoint highest{}; // of the points that it covers
};

struct ChartQuestion {
    std::string app{};
    MonitorCore::MetricID metric{};
    Base::Instant from{};
    Base::Instant to{};
    int columns{};
};

struct ChartAnswer {
    std::vector<ChartColumn> columns{}; // without those of which nothing is known
    std::uintmax_t bytes{};             // that the whole history takes
    std::string problem{};
};

// Samples, records and looks for alerts. Has no lock: lives on the monitor's thread.
class MonitorWorker
{
public:
    explicit MonitorWorker(MonitorTools tools) : m_tools(std::move(tools)) {}

    MonitorReport sample(const MonitorJob &job);
    // Lets go of what sampling keeps open. The next sample starts from nothing.
    void rest();

    Base::Result<void> end(const std::vector<MonitorCore::ProcessKey> &processes,
                           MonitorTools::Ending how);
    std::vector<std::uint16_t> portsOf(const std::vector<MonitorCore::ProcessKey> &processes);

    ChartAnswer chart(const ChartQuestion &question) const;
    std::vector<MonitorCore::HistoryCause> causes(MonitorCore::MetricID metric,
                                                  const MonitorCore::HistoryPoint &point) const;
    Base::Result<void> clearHistory();

private:
    MonitorCore::Collector &collector();
    void record(const MonitorJob &job, MonitorReport &report);
    void openHistory(Base::Instant now);

    MonitorTools m_tools;
    std::unique_ptr<MonitorCore::Collector> m_collector{};
    std::optional<MonitorCore::AppAggregator> m_aggregator{};
    MonitorCore::MonitorAlertRules m_rules{};
    std::optional<MonitorCore::MonitorHistoryStore> m_store{};
    std::optional<Base::Instant> m_triedToOpen{};
    std::optional<Base::Instant> m_maintained{};
    std::string m_problem{};
};

} // namespace Velvetnook
