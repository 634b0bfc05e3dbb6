// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/MonitorSnapshot.h"

#include <memory>

namespace MonitorCore
{

// How much one sample looks at; the rest costs nothing.
enum class SampleScope : std::uint8_t {
    system,    // the machine alone, for recording in the background
    processes, // the processes too, ungrouped
};

// What the system knows of where a process comes from, for grouping and for what may be ended.
struct ProcessOrigin {
    std::string cgroup{};   // its path in the hierarchy, "/user.slice/..."; empty: unknown
    std::int32_t session{}; // the number of the process that leads its session
    bool isKernelThread{};
};

// One sample as a platform gives it, before its processes are grouped into applications.
struct RawSample {
    MonitorSnapshot snapshot{}; // without apps
    std::vector<ProcessSample> processes{};
    std::vector<ProcessOrigin> origins{}; // one for each of the processes, in their order
};

// Samples one machine. Keeps the counters of the sample before, so one collector belongs to
// one thread and is asked at a steady pace. Never fails: what cannot be read is left out or
// says why in its state.
class Collector
{
public:
    Collector() = default;
    Collector(const Collector &) = delete;
    Collector &operator=(const Collector &) = delete;
    virtual ~Collector() = default;

    virtual RawSample sample(SampleScope scope, Base::Instant now) = 0;

    // The ports that one process listens on now, ascending; none when it has gone.
    virtual std::vector<std::uint16_t> portsOf(const ProcessKey &process) = 0;
};

} // namespace MonitorCore
