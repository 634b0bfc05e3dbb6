// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "MonitorCore/Vocabulary.h"

#include <cstdint>
#include <optional>
#include <string>

namespace MonitorCore
{

// What the monitor can report about the whole machine.
enum class MetricID : std::uint8_t {
    cpu,
    cpuUser,
    cpuSystem,
    cpuIdle,
    memoryUsed,
    memoryTotal,
    memoryPressure,
    memoryWired,
    memoryCompressed,
    diskFree,
    diskTotal,
    diskRead,
    diskWrite,
    download,
    upload,
    battery,
    batteryHealth,
    batteryMinutes,
    gpu,
    gpuMemory,
    cpuTemperature,
    gpuTemperature,
    fanRPM,
    powerWatts,
    energyImpact,
};

constexpr auto enumTexts(Of<MetricID>)
{
    using enum MetricID;
    return Base::EnumTexts<MetricID, 25>{{
        {cpu, "cpu"},
        {cpuUser, "cpuUser"},
        {cpuSystem, "cpuSystem"},
        {cpuIdle, "cpuIdle"},
        {memoryUsed, "memoryUsed"},
        {memoryTotal, "memoryTotal"},
        {memoryPressure, "memoryPressure"},
        {memoryWired, "memoryWired"},
        {memoryCompressed, "memoryCompressed"},
        {diskFree, "diskFree"},
        {diskTotal, "diskTotal"},
        {diskRead, "diskRead"},
        {diskWrite, "diskWrite"},
        {download, "download"},
        {upload, "upload"},
        {battery, "battery"},
        {batteryHealth, "batteryHealth"},
        {batteryMinutes, "batteryMinutes"},
        {gpu, "gpu"},
        {gpuMemory, "gpuMemory"},
        {cpuTemperature, "cpuTemperature"},
        {gpuTemperature, "gpuTemperature"},
        {fanRPM, "fanRPM"},
        {powerWatts, "powerWatts"},
        {energyImpact, "energyImpact"},
    }};
}

// Whether a reading has a number to show; only one that is available has.
enum class MetricState : std::uint8_t {
    available,
    warmingUp, // a rate that has no second sample yet
    stale,
    unsupported,        // the machine does not give it
    permissionRequired, // it does, but not to this user
};

constexpr auto enumTexts(Of<MetricState>)
{
    using enum MetricState;
    return Base::EnumTexts<MetricState, 5>{{
        {available, "available"},
        {warmingUp, "warmingUp"},
        {stale, "stale"},
        {unsupported, "unsupported"},
        {permissionRequired, "permissionRequired"},
    }};
}

enum class MetricUnit : std::uint8_t {
    percent,
    bytes,
    bytesPerSecond,
    minutes,
    celsius,
    rpm,
    watts,
    level,
    score,
};

constexpr auto enumTexts(Of<MetricUnit>)
{
    using enum MetricUnit;
    return Base::EnumTexts<MetricUnit, 9>{{
        {percent, "percent"},
        {bytes, "bytes"},
        {bytesPerSecond, "bytesPerSecond"},
        {minutes, "minutes"},
        {celsius, "celsius"},
        {rpm, "rpm"},
        {watts, "watts"},
        {level, "level"},
        {score, "score"},
    }};
}

MetricUnit unitOf(MetricID metric);

// One metric's current value.
struct MetricReading {
    std::optional<double> value{};
    MetricUnit unit{};
    std::string source{}; // where the value came from, such as "/proc/stat"
    MetricState state{};
    Base::Instant timestamp{};
    std::optional<std::string> detail{}; // shown beside the value

    bool operator==(const MetricReading &) const = default;
};

consteval auto jsonFields(Of<MetricReading>)
{
    using R = MetricReading;
    return std::tuple{
        json::Field{"value", &R::value},         json::Field{"unit", &R::unit},
        json::Field{"source", &R::source},       json::Field{"state", &R::state},
        json::Field{"timestamp", &R::timestamp}, json::Field{"detail", &R::detail},
    };
}
static_assert(json::coversAllMembers<MetricReading>());

} // namespace MonitorCore
