// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/Metric.h"

namespace MonitorCore
{

MetricUnit unitOf(MetricID metric)
{
    switch (metric) {
    case MetricID::cpu:
    case MetricID::cpuUser:
    case MetricID::cpuSystem:
    case MetricID::cpuIdle:
    case MetricID::battery:
    case MetricID::batteryHealth:
    case MetricID::gpu:
        return MetricUnit::percent;
    case MetricID::memoryPressure:
        return MetricUnit::level;
    case MetricID::memoryUsed:
    case MetricID::memoryTotal:
    case MetricID::memoryWired:
    case MetricID::memoryCompressed:
    case MetricID::diskFree:
    case MetricID::diskTotal:
    case MetricID::gpuMemory:
        return MetricUnit::bytes;
    case MetricID::diskRead:
    case MetricID::diskWrite:
    case MetricID::download:
    case MetricID::upload:
        return MetricUnit::bytesPerSecond;
    case MetricID::batteryMinutes:
        return MetricUnit::minutes;
    case MetricID::cpuTemperature:
    case MetricID::gpuTemperature:
        return MetricUnit::celsius;
    case MetricID::fanRPM:
        return MetricUnit::rpm;
    case MetricID::powerWatts:
        return MetricUnit::watts;
    case MetricID::energyImpact:
        break;
    }
    return MetricUnit::score;
}

} // namespace MonitorCore
