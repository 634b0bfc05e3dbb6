// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorAlertRules.h"
#include "cli/MonitorAnswers.h"
#include "cli/MonitorSampler.h"

#include <fmt/format.h>

#include <algorithm>

// The alerts that the rules raise on what was recorded.
namespace Cli
{

namespace
{

using MonitorCore::AppUsage;
using MonitorCore::MetricID;
using MonitorCore::MonitorHistoryStore;
using MonitorCore::MonitorSnapshot;

// The minutes in which something was recorded, by their start, as samples of a minute each.
using Minutes = std::map<Base::Instant, MonitorSnapshot>;

// "/usr/bin/make" is called make; what is no path keeps its name.
std::string nameOf(const std::string &app) { return app.substr(app.rfind('/') + 1); }

AppUsage &usageIn(MonitorSnapshot &minute, const std::string &app)
{
    // They come in the order of their keys for one metric, but not from metric to metric.
    const auto found = std::ranges::find(minute.apps, app, &AppUsage::id);
    return found != minute.apps.end()
               ? *found
               : minute.apps.emplace_back(AppUsage{.id = app, .name = nameOf(app)});
}

Result<Minutes> minutesOf(MonitorHistoryStore &store, Base::Instant from, Base::Instant to)
{
    Minutes minutes;
    KEST_TRY(const auto machine,
             store.history(MonitorCore::kSystemKey, MetricID::memoryUsed, from, to));
    std::map<Base::Instant, double> covered;
    for (const auto &point : machine) {
        if (point.resolution == 60) {
            minutes[point.date] = {.timestamp = point.date + Base::Seconds{60},
                                   .interval = point.coverage};
            covered[point.date] = point.coverage;
        }
    }
    for (const auto &rule : MonitorCore::kAppMetrics) {
        KEST_TRY(const auto shares, store.shares(rule.metric, from, to));
        for (const auto &share : shares) {
            const auto minute = minutes.find(share.date);
            if (minute == minutes.end()) {
                continue;
            }
            // A load is kept only for as long as it was one: its mean over the whole minute is
            // lower. A size is what it is.
            const bool isSize = rule.metric == MetricID::memoryUsed;
            const double part =
                isSize ? 1 : std::min(1.0, share.coverage / covered.at(share.date));
            usageIn(minute->second, share.app).*rule.usage = share.value * part;
        }
    }
    return minutes;
}

} // namespace

Result<void> runMonitorAlerts(const Session &session, double hours)
{
    KEST_TRY(auto preferences, monitorPreferences(session));
    preferences.alertsEnabled = true; // who asks for alerts wants them
    std::vector<AlertAnswer> answers;
    if (const auto file = historyFile(session); std::filesystem::exists(file)) {
        KEST_TRY(auto store, MonitorHistoryStore::openToRead(file));
        const Base::Instant now = Base::wallClock();
        KEST_TRY(const auto minutes, minutesOf(store, now - Base::Seconds{3600 * hours}, now));
        MonitorCore::MonitorAlertRules rules;
        for (const auto &[start, minute] : minutes) {
            for (const auto &alert : rules.evaluate(minute, preferences)) {
                AlertAnswer &answer = answers.emplace_back(AlertAnswer{.id = alert.id,
                                                                       .appID = alert.appID,
                                                                       .title = alert.title,
                                                                       .detail = alert.detail});
                KEST_TRY(answer.date, Base::toIso8601(minute.timestamp));
            }
        }
    }
    const Console &console = session.console;
    return console.answer(answers, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const AlertAnswer &answer : answers) {
            rows.push_back({printable(answer.date),
                            console.styled(printable(answer.title), Style::warning),
                            printable(answer.detail)});
        }
        console.table(rows);
        if (rows.empty()) {
            console.line("No alerts in what was recorded.");
        }
    });
}

} // namespace Cli
