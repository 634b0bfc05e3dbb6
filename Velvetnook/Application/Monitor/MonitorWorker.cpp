// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Monitor/MonitorWorker.h"

#include <algorithm>
#include <cmath>

namespace Velvetnook
{

namespace
{

using MonitorCore::HistoryPoint;
using MonitorCore::MonitorHistoryStore;
using MonitorCore::SampleScope;

// A history that somebody else writes to is asked for again so often.
constexpr double kRetrySeconds = 60;

bool isOlder(const std::optional<Base::Instant> &last, Base::Instant now, double seconds)
{
    const double age = last ? (now - *last).count() : seconds;
    return age < 0 || age >= seconds;
}

struct Sum {
    double total{};
    double weight{};
    HistoryPoint highest{};
};

std::vector<ChartColumn> columnsOf(const std::vector<HistoryPoint> &points,
                                   const ChartQuestion &question)
{
    const double whole = std::max(1.0, (question.to - question.from).count());
    const int count = std::max(1, question.columns);
    const auto columnAt = [&](double seconds) {
        return static_cast<std::size_t>(
            std::clamp(std::floor(seconds / whole * count), 0.0, count - 1.0));
    };
    std::vector<Sum> sums(static_cast<std::size_t>(count));
    for (const HistoryPoint &point : points) {
        const double start = (point.date - question.from).count();
        const double end = start + static_cast<double>(point.resolution);
        // The end belongs to what follows.
        for (auto at = columnAt(start); at <= columnAt(std::nextafter(end, start)); ++at) {
            Sum &sum = sums[at];
            if (sum.weight == 0 || point.peak > sum.highest.peak) {
                sum.highest = point;
            }
            sum.total += point.value * point.coverage;
            sum.weight += point.coverage;
        }
    }
    std::vector<ChartColumn> columns;
    for (std::size_t at = 0; at < sums.size(); ++at) {
        if (sums[at].weight > 0) {
            columns.push_back({.at = (static_cast<double>(at) + 0.5) / count,
                               .mean = sums[at].total / sums[at].weight,
                               .peak = sums[at].highest.peak,
                               .highest = sums[at].highest});
        }
    }
    return columns;
}

} // namespace

MonitorCore::Collector &MonitorWorker::collector()
{
    if (!m_collector) {
        m_collector = m_tools.collector();
    }
    return *m_collector;
}

MonitorReport MonitorWorker::sample(const MonitorJob &job)
{
    auto raw = collector().sample(job.scope, job.now);
    if (job.scope == SampleScope::processes) {
        if (!m_aggregator) {
            m_aggregator.emplace(m_tools.installedApps());
        }
        raw.snapshot.apps = m_aggregator->aggregate(std::move(raw.processes), raw.origins);
    }
    MonitorReport report;
    report.snapshot =
        std::make_shared<const MonitorCore::MonitorSnapshot>(std::move(raw.snapshot));
    if (job.watches && job.scope == SampleScope::processes) {
        report.alerts = m_rules.evaluate(*report.snapshot, job.preferences);
    } else if (!job.watches) {
        m_rules = {};
    }
    record(job, report);
    return report;
}

void MonitorWorker::record(const MonitorJob &job, MonitorReport &report)
{
    if (!job.records) {
        m_store.reset();
        m_problem.clear();
        m_triedToOpen.reset();
        return;
    }
    openHistory(job.now);
    if (!m_store) {
        report.problem = m_problem;
        return;
    }
    const auto recorded = m_store->record(*report.snapshot);
    m_problem = recorded ? std::string{} : recorded.error().message;
    if (isOlder(m_maintained, job.now, MonitorCore::kMaintenanceSeconds)) {
        m_maintained = job.now;
        if (const auto done = m_store->maintain(job.now, job.preferences.retentionDays);
            !done) {
            m_problem = done.error().message;
        }
    }
    report.problem = m_problem;
    report.notice = m_store->takeNotice().value_or(std::string{});
}

void MonitorWorker::openHistory(Base::Instant now)
{
    if (m_store || !isOlder(m_triedToOpen, now, kRetrySeconds)) {
        return;
    }
    m_triedToOpen = now;
    auto opened = MonitorHistoryStore::open(m_tools.history);
    if (!opened) {
        m_problem = opened.error().message;
        return;
    }
    m_problem.clear();
    m_store.emplace(std::move(*opened));
}

void MonitorWorker::rest()
{
    m_collector.reset();
    m_aggregator.reset();
    m_store.reset();
    m_rules = {};
    m_triedToOpen.reset();
}

Base::Result<void> MonitorWorker::end(const std::vector<MonitorCore::ProcessKey> &processes,
                                      MonitorTools::Ending how)
{
    // With one of its own, so that the pace of the samples stays what it is.
    const auto fresh = m_tools.collector();
    return m_tools.end(*fresh, processes, how);
}

std::vector<std::uint16_t>
MonitorWorker::portsOf(const std::vector<MonitorCore::ProcessKey> &processes)
{
    std::vector<std::uint16_t> all;
    for (const auto &process : processes) {
        const auto ports = collector().portsOf(process);
        all.insert(all.end(), ports.begin(), ports.end());
    }
    std::ranges::sort(all);
    const auto repeated = std::ranges::unique(all);
    all.erase(repeated.begin(), repeated.end());
    return all;
}

ChartAnswer MonitorWorker::chart(const ChartQuestion &question) const
{
    ChartAnswer answer;
    std::error_code ignored;
    if (!std::filesystem::exists(m_tools.history, ignored)) { // to look must not create it
        return answer;
    }
    auto store = MonitorHistoryStore::openToRead(m_tools.history);
    if (!store) {
        answer.problem = store.error().message;
        return answer;
    }
    answer.bytes = store->size();
    const auto points =
        store->history(question.app, question.metric, question.from, question.to);
    if (!points) {
        answer.problem = points.error().message;
        return answer;
    }
    answer.columns = columnsOf(*points, question);
    return answer;
}

std::vector<MonitorCore::HistoryCause> MonitorWorker::causes(MonitorCore::MetricID metric,
                                                             const HistoryPoint &point) const
{
    auto store = MonitorHistoryStore::openToRead(m_tools.history);
    if (!store) {
        return {};
    }
    auto found = store->causes(metric, point);
    return found ? std::move(*found) : std::vector<MonitorCore::HistoryCause>{};
}

Base::Result<void> MonitorWorker::clearHistory()
{
    if (m_store) {
        return m_store->clear();
    }
    std::error_code ignored;
    if (!std::filesystem::exists(m_tools.history, ignored)) {
        return {};
    }
    KEST_TRY(auto store, MonitorHistoryStore::open(m_tools.history));
    return store.clear();
}

} // namespace Velvetnook
