// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/CounterRate.h"

#include <cmath>

namespace MonitorCore
{

namespace
{

void add(std::optional<double> &sum, std::optional<double> rate)
{
    if (rate) {
        sum = sum.value_or(0) + *rate;
    }
}

// Whether a reading of that time can still give a rate.
bool isUsable(const CounterRate &counter, double time)
{
    return counter.previous && counter.previous->second <= time &&
           time - counter.previous->second <= kLongestGapSeconds;
}

} // namespace

std::optional<double> CounterRate::update(std::uint64_t counter, double time)
{
    const auto before = std::exchange(previous, std::pair{counter, time});
    if (!std::isfinite(time) || !before) {
        return std::nullopt;
    }
    const auto [value, when] = *before;
    if (!(counter >= value && when < time && time - when <= kLongestGapSeconds)) {
        return std::nullopt;
    }
    return static_cast<double>(counter - value) / (time - when);
}

NetworkRates InterfaceRates::update(const std::vector<NetworkCounter> &counters, double time)
{
    NetworkRates sums;
    for (const NetworkCounter &counter : counters) {
        if (!counter.physical) {
            continue;
        }
        Memory &memory = rates[counter.name];
        add(sums.download, memory.received.update(counter.received, time));
        add(sums.upload, memory.sent.update(counter.sent, time));
    }
    if (std::isfinite(time)) { // no other time can tell what is old
        std::erase_if(rates,
                      [&](const auto &entry) { return !isUsable(entry.second.sent, time); });
    }
    return sums;
}

} // namespace MonitorCore
