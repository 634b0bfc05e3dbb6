// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Metric.h"

#include <map>
#include <vector>

namespace MonitorCore
{

// One process across samples: a number that is used again is another process.
struct ProcessKey {
    std::int32_t pid{};
    std::uint64_t start{}; // the platform's own start time

    // "412:1731600000123"
    std::string id() const { return std::to_string(pid) + ":" + std::to_string(start); }

    auto operator<=>(const ProcessKey &) const = default;
};

consteval auto jsonFields(Of<ProcessKey>)
{
    return std::tuple{json::Field{"pid", &ProcessKey::pid},
                      json::Field{"start", &ProcessKey::start}};
}
static_assert(json::coversAllMembers<ProcessKey>());

// One process in one sample. Loads are percent of one core, sizes bytes, rates bytes per
// second; energy is a score.
struct ProcessSample {
    ProcessKey key{};
    std::int32_t parentPID{};
    std::uint32_t owner{}; // the user's number
    std::string name{};
    std::optional<std::string> bundleID{}; // the desktop-file id of its application
    std::string executable{};
    double cpu{};
    double memory{};
    double diskRead{};
    double diskWrite{};
    double download{};
    double upload{};
    double energy{};
    std::optional<std::string> directory{}; // it works in
    std::vector<std::uint16_t> ports{};     // it listens on; asked for one process at a time

    bool operator==(const ProcessSample &) const = default;
};

consteval auto jsonFields(Of<ProcessSample>)
{
    using R = ProcessSample;
    return std::tuple{
        json::Field{"key", &R::key},           json::Field{"parentPID", &R::parentPID},
        json::Field{"owner", &R::owner},       json::Field{"name", &R::name},
        json::Field{"bundleID", &R::bundleID}, json::Field{"executable", &R::executable},
        json::Field{"cpu", &R::cpu},           json::Field{"memory", &R::memory},
        json::Field{"diskRead", &R::diskRead}, json::Field{"diskWrite", &R::diskWrite},
        json::Field{"download", &R::download}, json::Field{"upload", &R::upload},
        json::Field{"energy", &R::energy},     json::Field{"directory", &R::directory},
        json::Field{"ports", &R::ports},
    };
}
static_assert(json::coversAllMembers<ProcessSample>());

// One application: the sums of its processes, in their units.
struct AppUsage {
    std::string id{}; // the key it is grouped by
    std::string name{};
    std::optional<std::string> bundleID{};
    std::vector<ProcessSample> processes{};
    double cpu{};
    double memory{};
    double diskRead{};
    double diskWrite{};
    double download{};
    double upload{};
    double energy{};

    bool operator==(const AppUsage &) const = default;
};

consteval auto jsonFields(Of<AppUsage>)
{
    using R = AppUsage;
    return std::tuple{
        json::Field{"id", &R::id},
        json::Field{"name", &R::name},
        json::Field{"bundleID", &R::bundleID},
        json::Field{"processes", &R::processes},
        json::Field{"cpu", &R::cpu},
        json::Field{"memory", &R::memory},
        json::Field{"diskRead", &R::diskRead},
        json::Field{"diskWrite", &R::diskWrite},
        json::Field{"download", &R::download},
        json::Field{"upload", &R::upload},
        json::Field{"energy", &R::energy},
    };
}
static_assert(json::coversAllMembers<AppUsage>());

struct AccessoryBattery {
    std::string id{};
    std::string name{};
    double percent{}; // 0 to 100

    bool operator==(const AccessoryBattery &) const = default;
};

consteval auto jsonFields(Of<AccessoryBattery>)
{
    using R = AccessoryBattery;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"name", &R::name},
                      json::Field{"percent", &R::percent}};
}
static_assert(json::coversAllMembers<AccessoryBattery>());

// One whole sample of the machine.
struct MonitorSnapshot {
    Base::Instant timestamp{};
    double uptime{};   // seconds since the machine started
    double interval{}; // seconds since the sample before, the base of every rate; 0: none
    std::map<MetricID, MetricReading> readings{};
    std::vector<AppUsage> apps{};
    std::vector<AccessoryBattery> accessories{};
    std::int64_t restrictedProcessCount{}; // could not be read for lack of permission
    std::optional<Base::Instant> advancedTimestamp{}; // of the privileged sampler's figures
    std::optional<double> advancedInterval{};         // seconds that those cover

    bool operator==(const MonitorSnapshot &) const = default;
};

consteval auto jsonFields(Of<MonitorSnapshot>)
{
    using R = MonitorSnapshot;
    return std::tuple{
        json::Field{"timestamp", &R::timestamp},
        json::Field{"uptime", &R::uptime},
        json::Field{"interval", &R::interval},
        json::Field{"readings", &R::readings},
        json::Field{"apps", &R::apps},
        json::Field{"accessories", &R::accessories},
        json::Field{"restrictedProcessCount", &R::restrictedProcessCount},
        json::Field{"advancedTimestamp", &R::advancedTimestamp},
        json::Field{"advancedInterval", &R::advancedInterval},
    };
}
static_assert(json::coversAllMembers<MonitorSnapshot>());

} // namespace MonitorCore
