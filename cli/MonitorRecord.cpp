// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/CounterRate.h"
#include "MonitorCore/MonitorAlertRules.h"
#include "MonitorCore/MonitorHistoryStore.h"
#include "MonitorCore/MonitorServiceIdentity.h"
#include "cli/MonitorAnswers.h"
#include "cli/MonitorSampler.h"

#include <fmt/format.h>

#include <cstdio>

// Records into the monitor's history until it is stopped.
namespace Cli
{

namespace
{

using MonitorCore::MonitorHistoryStore;
using MonitorCore::MonitorSnapshot;

void tell(const std::string &message)
{
    std::fflush(stdout);
    std::fprintf(stderr, "kest: %s\n", message.c_str());
}

class Recorder
{
public:
    Recorder(const Console &console, MonitorHistoryStore store,
             MonitorCore::MonitorPreferences preferences)
        : m_console(console), m_store(std::move(store)), m_preferences(std::move(preferences))
    {
    }

    // A history that cannot be written to just now, as on a full disk, is said once and tried
    // again: a recorder that ends by itself would leave a gap that nobody sees.
    void record(const MonitorSnapshot &snapshot)
    {
        const auto recorded = m_store.record(snapshot);
        if (!recorded) {
            if (recorded.error().message != m_lastFailure) {
                m_lastFailure = recorded.error().message;
                tell(m_lastFailure);
            }
        } else if (snapshot.interval > 0 &&
                   snapshot.interval <= MonitorCore::kLongestGapSeconds) {
            m_lastFailure.clear();
            ++m_samples;
        }
        for (const auto &alert : m_rules.evaluate(snapshot, m_preferences)) {
            if (!m_console.isJson) {
                m_console.line(fmt::format(
                    "{}  {}. {}", localTime(Base::milliseconds1970(snapshot.timestamp)),
                    printable(alert.title), alert.detail));
                std::fflush(stdout);
            }
        }
        maintain(snapshot.timestamp);
        if (const auto notice = m_store.takeNotice()) {
            tell(*notice);
        }
    }

    std::int64_t samples() const { return m_samples; }

private:
    void maintain(Base::Instant now)
    {
        const double age = m_maintained ? (now - *m_maintained).count() : -1;
        if (age >= 0 && age < MonitorCore::kMaintenanceSeconds) {
            return;
        }
        m_maintained = now;
        if (const auto done = m_store.maintain(now, m_preferences.retentionDays); !done) {
            tell(done.error().message);
        }
    }

    const Console &m_console;
    MonitorHistoryStore m_store;
    MonitorCore::MonitorPreferences m_preferences;
    MonitorCore::MonitorAlertRules m_rules;
    std::optional<Base::Instant> m_maintained;
    std::string m_lastFailure;
    std::int64_t m_samples{};
};

// Samples at a steady pace: what a sample takes is not added to the pause.
void runUntilStopped(const StopSignals &signals, const LiveArguments &args, Recorder &recorder)
{
    MonitorSampler sampler;
    double next = MonitorLinux::secondsSinceBoot();
    while (!args.count || recorder.samples() < *args.count) {
        recorder.record(sampler.sample());
        const double now = MonitorLinux::secondsSinceBoot();
        next = std::max(next + args.interval, now); // after a sleep nothing is made up for
        const bool isOver = args.count && recorder.samples() >= *args.count;
        if (isOver || signals.cameWithin(next - now)) {
            return;
        }
    }
}

} // namespace

Result<void> runMonitorRecord(const Session &session, const LiveArguments &args)
{
    const StopSignals signals;
    const auto file = historyFile(session);
    KEST_TRY(auto store, MonitorHistoryStore::open(file));
    KEST_TRY(auto preferences, monitorPreferences(session));
    const Console &console = session.console;
    if (!console.isJson) {
        console.line(fmt::format("Recording every {} s to {}; Ctrl+C stops it.", args.interval,
                                 printable(file.string())));
        std::fflush(stdout);
    }
    Recorder recorder{console, std::move(store), std::move(preferences)};
    runUntilStopped(signals, args, recorder);
    return console.answer(
        RecordAnswer{.samples = recorder.samples(), .file = file.string()},
        [&] { console.line(fmt::format("Recorded {} samples.", recorder.samples())); });
}

} // namespace Cli
