// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Serial.h"
#include "MonitorCore/Collector.h"
#include "MonitorCore/CounterRate.h"
#include "MonitorLinux/Devices.h"
#include "MonitorLinux/ProcParsers.h"
#include "MonitorLinux/ProcessTable.h"

#include <functional>
#include <future>

namespace MonitorLinux
{

// Seconds since boot, a sleep of the machine included. Rates rest on it: the wall clock that
// stamps a sample may be set at any time.
double secondsSinceBoot();

// Samples this machine from /proc and /sys. What drivers may be slow to tell is read on a
// thread of its own, at most every five seconds and only while samples are asked for; until
// it first answers, those metrics are warming up.
class LinuxCollector : public MonitorCore::Collector
{
public:
    using Clock = std::function<double()>;

    // `root` holds the folders proc and sys; either may be missing.
    explicit LinuxCollector(const std::string &root = "/", Clock clock = secondsSinceBoot);

    MonitorCore::RawSample sample(MonitorCore::SampleScope scope, Base::Instant now) override;
    std::vector<std::uint16_t> portsOf(const MonitorCore::ProcessKey &process) override;

private:
    // An answer of the device thread, and when it was asked for.
    struct Answer {
        DeviceReadings readings{};
        double time{};
        Base::Instant instant{};
    };

    void sampleCpu(double time, Findings &findings);
    void sampleMemory(Findings &findings);
    void sampleDisks(double time, Findings &findings);
    void sampleNetwork(double time, Findings &findings);
    void sampleDevices(double time, Base::Instant now, MonitorCore::MonitorSnapshot &snapshot,
                       Findings &findings);
    void addEnergy(Findings &findings) const;
    bool isPhysicalDisk(std::string_view name) const;
    std::vector<MonitorCore::NetworkCounter> networkCounters();

    std::string m_root;
    Clock m_clock;
    Folder m_proc;
    Folder m_sys;
    ProcessTable m_processes;
    std::string m_buffer; // the file being read; kept for its room, as are the next two
    std::vector<Traffic> m_rows;
    std::vector<MonitorCore::NetworkCounter> m_counters;
    std::optional<double> m_lastTime;
    std::optional<CpuTicks> m_cpu;
    double m_cores{};
    MonitorCore::InterfaceRates m_network;
    MonitorCore::InterfaceRates m_disks; // the same rules hold for disks that come and go
    std::optional<Answer> m_devices;
    double m_devicesAsked{};
    std::future<Answer> m_devicesPending;
    Base::Serial<DeviceReader> m_deviceThread; // last: its answers need nothing of the above
};

} // namespace MonitorLinux
