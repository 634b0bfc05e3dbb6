// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace MonitorCore
{

// Two samples further apart say nothing about each other.
inline constexpr double kLongestGapSeconds = 90;

// Makes a rate of an ever-growing counter. A counter that went backwards, a clock that did
// not advance and a gap of more than 90 seconds give no rate, only a new start.
struct CounterRate {
    std::optional<std::pair<std::uint64_t, double>> previous{}; // the value, and when (s)

    // Units per second since the value before. Remembers this one, whatever it returns.
    std::optional<double> update(std::uint64_t counter, double time);

    bool operator==(const CounterRate &) const = default;
};

// One network interface's counters as the platform gives them, in bytes.
struct NetworkCounter {
    std::string name{};
    std::uint64_t received{};
    std::uint64_t sent{};
    bool physical{}; // only these count; the others carry the same bytes a second time

    bool operator==(const NetworkCounter &) const = default;
};

// In bytes per second; absent, not zero, where no interface gave a rate.
struct NetworkRates {
    std::optional<double> download{};
    std::optional<double> upload{};

    bool operator==(const NetworkRates &) const = default;
};

// The traffic of all physical interfaces. One that leaves the list is remembered for 90
// seconds, as one that comes back sooner still gives a true rate; then it is dropped.
struct InterfaceRates {
    struct Memory {
        CounterRate received{};
        CounterRate sent{};

        bool operator==(const Memory &) const = default;
    };

    std::map<std::string, Memory> rates{};

    NetworkRates update(const std::vector<NetworkCounter> &counters, double time);

    bool operator==(const InterfaceRates &) const = default;
};

} // namespace MonitorCore
