// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/MonitorOfHost.h"

#include "MonitorCore/MonitorServiceIdentity.h"
#include "MonitorLinux/InstalledApps.h"
#include "MonitorLinux/LinuxCollector.h"
#include "MonitorLinux/ProcessEnding.h"

#include <thread>

namespace Velvetnook
{

MonitorTools monitorOfHost(const std::filesystem::path &dataFolder)
{
    return {.collector = [] { return std::make_unique<MonitorLinux::LinuxCollector>(); },
            .installedApps =
                [] { return MonitorLinux::installedApps(MonitorLinux::appPlacesOfUser()); },
            .end =
                [](MonitorCore::Collector &collector,
                   const std::vector<MonitorCore::ProcessKey> &processes,
                   MonitorTools::Ending how) {
                    return MonitorLinux::endProcesses(collector, processes,
                                                      how == MonitorTools::Ending::kill
                                                          ? MonitorLinux::Ending::kill
                                                          : MonitorLinux::Ending::quit);
                },
            .history = dataFolder / MonitorCore::kHistoryPath,
            .cores = static_cast<int>(std::thread::hardware_concurrency())};
}

} // namespace Velvetnook
