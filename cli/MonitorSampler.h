// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorPreferences.h"
#include "MonitorLinux/InstalledApps.h"
#include "MonitorLinux/LinuxCollector.h"
#include "cli/Session.h"

#include <optional>

// What the monitor's commands share.
namespace Cli
{

// SIGINT, SIGTERM and SIGHUP as an answer to waiting instead of an end in the middle of
// something. To be made before the first thread, which inherits it.
class StopSignals
{
public:
    StopSignals();

    // Waits so many seconds; true when one of the signals came.
    bool cameWithin(double seconds) const;

private:
    sigset_t m_signals{};
};

// Samples this machine with its processes grouped into applications.
class MonitorSampler
{
public:
    MonitorCore::MonitorSnapshot sample();
    MonitorLinux::LinuxCollector &collector() { return m_collector; }

private:
    MonitorLinux::LinuxCollector m_collector;
    MonitorCore::AppAggregator m_aggregator{
        MonitorLinux::installedApps(MonitorLinux::appPlacesOfUser())};
};

// The settings' preferences, mended; the defaults where none are set.
[[nodiscard]] Result<MonitorCore::MonitorPreferences>
monitorPreferences(const Session &session);

std::filesystem::path historyFile(const Session &session);

// Seconds between two samples.
inline constexpr double kShortestPace = 0.2;
inline constexpr double kLongestPace = 60;

// The commands behind "monitor".
struct LiveArguments {
    double interval = 2;
    std::optional<std::int64_t> count{}; // samples; until stopped without it
};
struct SeriesArguments {
    std::string metric{};
    std::string app{};
    double hours = 24;
    std::string from{};
    std::string to{};
};
[[nodiscard]] Result<void> runMonitorView(const LiveArguments &args);
[[nodiscard]] Result<void> runMonitorRecord(const Session &session, const LiveArguments &args);
[[nodiscard]] Result<void> runMonitorHistory(const Session &session,
                                             const SeriesArguments &args);
[[nodiscard]] Result<void> runMonitorAlerts(const Session &session, double hours);

} // namespace Cli
