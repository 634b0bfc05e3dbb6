// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorAlertRules.h"

#include "Base/JsonWriter.h"
#include "MonitorCore/CounterRate.h"

#include <fmt/format.h>

#include <cmath>

namespace Base::json
{

using namespace MonitorCore;
template Result<std::string> encode(const MonitorAlert &);
template Result<std::string> encode(const std::vector<MonitorAlert> &);

} // namespace Base::json

namespace MonitorCore
{

namespace
{

constexpr double kTrafficSeconds = 300;
constexpr double kSilenceSeconds = 1'800;  // before the same alert is raised again
constexpr double kBaselineSeconds = 3'600; // before a baseline is judged
constexpr double kLongestBaseline = 3'660; // one sample's gap later it is renewed
constexpr double kGrowthFactor = 1.5;

constexpr const char *kCpuDetail = "CPU stayed above {:.0f}% of one core.";
constexpr const char *kDiskDetail = "Sustained disk activity exceeded your threshold.";
constexpr const char *kNetworkDetail = "Sustained network activity exceeded your threshold.";
constexpr const char *kMemoryDetail =
    "Its process footprint grew over the last hour. Review the app to see why.";
constexpr const char *kCpuTitle = "{}: high CPU load";
constexpr const char *kDiskTitle = "{}: high disk activity";
constexpr const char *kNetworkTitle = "{}: high network activity";
constexpr const char *kMemoryTitle = "{}: growing memory";

// One application in one sample, on its way through the rules.
class Evaluation
{
public:
    Evaluation(const MonitorPreferences &preferences, Base::Instant now,
               const MonitorAlertRules &before, MonitorAlertRules &after,
               std::vector<MonitorAlert> &alerts)
        : m_preferences(preferences), m_now(now), m_before(before), m_after(after),
          m_alerts(alerts)
    {
    }

    void apply(const AppUsage &app)
    {
        const auto &p = m_preferences;
        judgeLoad(app, "cpu", app.cpu > p.cpuThreshold, p.cpuDuration, kCpuTitle,
                  fmt::format(kCpuDetail, std::trunc(p.cpuThreshold)));
        judgeLoad(app, "disk",
                  p.diskThreshold > 0 && p.diskThreshold <= app.diskRead + app.diskWrite,
                  kTrafficSeconds, kDiskTitle, kDiskDetail);
        judgeLoad(app, "network",
                  p.networkThreshold > 0 && p.networkThreshold <= app.download + app.upload,
                  kTrafficSeconds, kNetworkTitle, kNetworkDetail);
        judgeMemory(app);
    }

private:
    double secondsSince(Base::Instant date) const { return (m_now - date).count(); }

    void judgeLoad(const AppUsage &app, std::string_view rule, bool holds, double duration,
                   const char *title, std::string detail)
    {
        if (!holds) {
            return; // and so its start is not carried over
        }
        const std::string id = fmt::format("{}|{}", app.id, rule);
        const auto known = m_before.starts.find(id);
        const Base::Instant start = known == m_before.starts.end() ? m_now : known->second;
        m_after.starts[id] = start;
        if (secondsSince(start) >= duration) {
            raise(id, app, title, std::move(detail));
        }
    }

    void judgeMemory(const AppUsage &app)
    {
        if (!std::isfinite(app.memory)) {
            return;
        }
        const MonitorAlertRules::Baseline fresh{.footprint = app.memory, .date = m_now};
        const auto known = m_before.memory.find(app.id);
        auto baseline = known == m_before.memory.end() ? fresh : known->second;
        const double age = secondsSince(baseline.date);
        if (age >= kBaselineSeconds &&
            app.memory - baseline.footprint >= m_preferences.memoryGrowthBytes &&
            app.memory >= kGrowthFactor * baseline.footprint) {
            raise(app.id + "|memory", app, kMemoryTitle, kMemoryDetail);
            baseline = fresh;
        }
        if (age > kLongestBaseline || app.memory < baseline.footprint) {
            baseline = fresh;
        }
        m_after.memory[app.id] = baseline;
    }

    void raise(const std::string &id, const AppUsage &app, const char *title,
               std::string detail)
    {
        if (m_after.sent.try_emplace(id, m_now).second) {
            m_alerts.push_back({.id = id,
                                .appID = app.id,
                                .title = fmt::format(fmt::runtime(title), app.name),
                                .detail = std::move(detail)});
        }
    }

    const MonitorPreferences &m_preferences;
    Base::Instant m_now;
    const MonitorAlertRules &m_before;
    MonitorAlertRules &m_after;
    std::vector<MonitorAlert> &m_alerts;
};

} // namespace

std::vector<MonitorAlert> MonitorAlertRules::evaluate(const MonitorSnapshot &snapshot,
                                                      const MonitorPreferences &preferences)
{
    const Base::Instant now = snapshot.timestamp;
    const double gap = lastSample ? (now - *lastSample).count() : 0;
    if (!(gap >= 0 && gap <= kLongestGapSeconds)) {
        starts.clear();
        memory.clear();
    }
    // What is not put into `next` again is forgotten: conditions that no longer hold and
    // applications that are gone. Alerts of a clock that was ahead must not silence for ever.
    MonitorAlertRules next{.lastSample = now, .sent = sent};
    std::erase_if(next.sent, [&](const auto &entry) {
        const double age = (now - entry.second).count();
        return !(age >= 0 && age < kSilenceSeconds);
    });
    std::vector<MonitorAlert> alerts;
    if (preferences.alertsEnabled) {
        Evaluation evaluation{preferences, now, *this, next, alerts};
        for (const AppUsage &app : snapshot.apps) {
            if (!preferences.excludedApps.contains(app.id)) {
                evaluation.apply(app);
            }
        }
    }
    *this = std::move(next);
    return alerts;
}

} // namespace MonitorCore
