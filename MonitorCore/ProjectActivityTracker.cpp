// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProjectActivityTracker.h"

#include "MonitorCore/CounterRate.h"

namespace MonitorCore
{

namespace
{

constexpr double kLowCpu = 2;          // percent of one core
constexpr double kLowTraffic = 20'000; // bytes a second, disk and network

bool isLow(const MonitorProject &project)
{
    double cpu = 0;
    double traffic = 0;
    for (const ProcessSample &process : project.processes) {
        cpu += process.cpu;
        traffic += process.diskRead + process.diskWrite + process.download + process.upload;
    }
    return cpu < kLowCpu && traffic < kLowTraffic;
}

} // namespace

void ProjectActivityTracker::update(const std::vector<MonitorProject> &projects,
                                    Base::Instant now)
{
    const double gap = lastSample ? (now - *lastSample).count() : 0;
    const bool isContinued = gap >= 0 && gap <= kLongestGapSeconds;
    std::map<std::string, double> next;
    for (const MonitorProject &project : projects) {
        const auto known = lowActivitySeconds.find(project.id);
        // The figures of a sample are of the time before it, in which a new project was not.
        const bool goesOn = isContinued && known != lowActivitySeconds.end() && isLow(project);
        next[project.id] = goesOn ? known->second + gap : 0;
    }
    lowActivitySeconds = std::move(next);
    lastSample = now;
}

} // namespace MonitorCore
