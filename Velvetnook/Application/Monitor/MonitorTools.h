// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Result.h"
#include "MonitorCore/AppAggregator.h"
#include "MonitorCore/Collector.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace Velvetnook
{

// What the monitor needs of the platform. All are called on the monitor's own thread.
struct MonitorTools {
    enum class Ending : std::uint8_t { quit, kill };

    std::function<std::unique_ptr<MonitorCore::Collector>()> collector{};
    std::function<std::vector<MonitorCore::InstalledApp>()> installedApps{};
    // Ends the processes where that may be; else says why not.
    std::function<Base::Result<void>(MonitorCore::Collector &,
                                     const std::vector<MonitorCore::ProcessKey> &, Ending)>
        end{};
    std::filesystem::path history{}; // the database, which need not exist
    int cores{};                     // 0: nobody knows
};

} // namespace Velvetnook
