// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Vocabulary.h"

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace MonitorCore
{

// What the small panel shows of the monitor, and how.
inline constexpr std::array<std::string_view, 5> kPinMetrics{"combined", "cpu", "memory",
                                                             "network", "battery"};
inline constexpr std::array<std::string_view, 4> kMenuStyles{"icon", "number", "graph",
                                                             "stacked"};

// The user's monitor settings. Words are kept as texts, so that one this build does not know
// decodes and is then mended by `normalised`.
struct MonitorPreferences {
    bool historyEnabled{false};
    bool historyPaused{false};
    std::int64_t retentionDays{30}; // 1, 7 or 30
    bool alertsEnabled{false};
    double cpuThreshold{80};                 // percent of one core, 10 to 10,000
    double cpuDuration{600};                 // seconds, 60 to 3,600
    double memoryGrowthBytes{1'073'741'824}; // in an hour, at least 256 MiB
    double diskThreshold{0};                 // bytes per second; 0: no alert
    double networkThreshold{0};              // bytes per second; 0: no alert
    std::set<std::string> excludedApps{};    // application keys that raise no alert
    std::string pinMetric{"combined"};       // one of kPinMetrics
    std::string menuStyle{"icon"};           // one of kMenuStyles
    std::string menuMetric{"cpu"};

    bool operator==(const MonitorPreferences &) const = default;
};

consteval auto jsonFields(Of<MonitorPreferences>)
{
    using R = MonitorPreferences;
    return std::tuple{
        json::Field{"historyEnabled", &R::historyEnabled},
        json::Field{"historyPaused", &R::historyPaused},
        json::Field{"retentionDays", &R::retentionDays},
        json::Field{"alertsEnabled", &R::alertsEnabled},
        json::Field{"cpuThreshold", &R::cpuThreshold},
        json::Field{"cpuDuration", &R::cpuDuration},
        json::Field{"memoryGrowthBytes", &R::memoryGrowthBytes},
        json::Field{"diskThreshold", &R::diskThreshold},
        json::Field{"networkThreshold", &R::networkThreshold},
        json::Field{"excludedApps", &R::excludedApps},
        json::Field{"pinMetric", &R::pinMetric},
        json::Field{"menuStyle", &R::menuStyle},
        json::Field{"menuMetric", &R::menuMetric},
    };
}
static_assert(json::coversAllMembers<MonitorPreferences>());

// The preferences with every value that makes no sense mended; applied whenever they are
// loaded or changed, before they are used or saved.
MonitorPreferences normalised(MonitorPreferences preferences);

} // namespace MonitorCore
