// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorPreferences.h"
#include "MonitorCore/MonitorSnapshot.h"

namespace MonitorCore
{

// Something about an application that its user should look at.
struct MonitorAlert {
    std::string id{}; // the application's key, "|", and "cpu", "disk", "network" or "memory"
    std::string appID{};
    std::string title{};
    std::string detail{};

    bool operator==(const MonitorAlert &) const = default;
};

consteval auto jsonFields(Of<MonitorAlert>)
{
    using R = MonitorAlert;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"appID", &R::appID},
        json::Field{"title", &R::title},
        json::Field{"detail", &R::detail},
    };
}
static_assert(json::coversAllMembers<MonitorAlert>());

// Watches for loads that stay high and memory that keeps growing. To be fed with every sample
// that has its processes grouped, and with no other: an application that a sample lacks is
// taken to have ended.
struct MonitorAlertRules {
    // What an application's footprint is compared with.
    struct Baseline {
        double footprint{};
        Base::Instant date{};

        bool operator==(const Baseline &) const = default;
    };

    std::optional<Base::Instant> lastSample{};
    std::map<std::string, Base::Instant> starts{}; // by alert id: since when it has been high
    std::map<std::string, Baseline> memory{};      // by application
    std::map<std::string, Base::Instant> sent{};   // by alert id; silent for half an hour

    // The new alerts of this sample. `preferences` are normalised; while they turn alerts off,
    // and for an application that they exclude, nothing is remembered either.
    std::vector<MonitorAlert> evaluate(const MonitorSnapshot &snapshot,
                                       const MonitorPreferences &preferences);

    bool operator==(const MonitorAlertRules &) const = default;
};

} // namespace MonitorCore
