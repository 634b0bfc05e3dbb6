// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <initializer_list>
#include <utility>

// A sample of `seconds` that ends at `time` (s since 1970), with these readings.
inline MonitorCore::MonitorSnapshot
snapshotAt(double time, double seconds,
           std::initializer_list<std::pair<MonitorCore::MetricID, double>> readings)
{
    MonitorCore::MonitorSnapshot snapshot{.timestamp = Base::fromSeconds1970(time),
                                          .interval = seconds};
    for (const auto &[metric, value] : readings) {
        snapshot.readings[metric] = {.value = value,
                                     .unit = MonitorCore::unitOf(metric),
                                     .state = MonitorCore::MetricState::available,
                                     .timestamp = snapshot.timestamp};
    }
    return snapshot;
}
