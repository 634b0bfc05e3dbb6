// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/LinuxCollector.h"

#include "MonitorLinux/EnergyImpact.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>

namespace MonitorLinux
{

using MonitorCore::MonitorSnapshot;
using MonitorCore::RawSample;
using MonitorCore::SampleScope;

namespace
{

constexpr double kDeviceSeconds = 5;
constexpr const char *kZramSource = "/sys/block";
constexpr double kStaleSeconds = 30; // a driver that hangs for so long is not waited for

// Every metric that the device thread answers.
constexpr std::pair<MetricID, const char *> kDeviceMetrics[] = {
    {MetricID::battery, "/sys/class/power_supply"},
    {MetricID::batteryHealth, "/sys/class/power_supply"},
    {MetricID::batteryMinutes, "/sys/class/power_supply"},
    {MetricID::gpu, "/sys/class/drm"},
    {MetricID::gpuMemory, "/sys/class/drm"},
    {MetricID::cpuTemperature, "/sys/class/hwmon"},
    {MetricID::gpuTemperature, "/sys/class/hwmon"},
    {MetricID::fanRPM, "/sys/class/hwmon"},
    {MetricID::powerWatts, "/sys/class/powercap"},
};

void report(MonitorSnapshot &snapshot, MetricID metric, Finding finding, Base::Instant at)
{
    snapshot.readings[metric] = {.value = finding.value,
                                 .unit = unitOf(metric),
                                 .source = std::move(finding.source),
                                 .state = finding.state,
                                 .timestamp = at,
                                 .detail = std::move(finding.detail)};
}

} // namespace

double secondsSinceBoot()
{
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

LinuxCollector::LinuxCollector(const std::string &root, Clock clock)
    : m_root(root), m_clock(std::move(clock)), m_proc(root + "/proc"), m_sys(root + "/sys"),
      m_processes(root + "/proc"),
      m_cores(static_cast<double>(std::max(1L, ::sysconf(_SC_NPROCESSORS_ONLN)))),
      m_deviceThread(DeviceReader{root + "/sys"})
{
}

RawSample LinuxCollector::sample(SampleScope scope, Base::Instant now)
{
    const double time = m_clock();
    RawSample sample;
    auto &snapshot = sample.snapshot;
    snapshot.timestamp = now;
    snapshot.uptime = time;
    snapshot.interval = m_lastTime ? std::max(0.0, time - *m_lastTime) : 0;
    Findings findings;
    sampleCpu(time, findings);
    sampleMemory(findings);
    sampleDisks(time, findings);
    sampleNetwork(time, findings);
    addEnergy(findings);
    sampleDevices(time, now, snapshot, findings);
    for (auto &[metric, finding] : findings) {
        report(snapshot, metric, std::move(finding), now);
    }
    if (scope == SampleScope::processes) {
        m_processes.sample(time, sample);
    }
    m_lastTime = time;
    return sample;
}

std::vector<std::uint16_t> LinuxCollector::portsOf(const MonitorCore::ProcessKey &process)
{
    return m_processes.portsOf(process);
}

// Hands the answer on when there is one, and asks again when the last is old enough. Never
// waits.
void LinuxCollector::sampleDevices(double time, Base::Instant now, MonitorSnapshot &snapshot,
                                   Findings &findings)
{
    if (m_devicesPending.valid() &&
        m_devicesPending.wait_for(std::chrono::seconds{0}) == std::future_status::ready) {
        m_devices = m_devicesPending.get();
    }
    if (!m_devicesPending.valid() &&
        (!m_devices || time - m_devicesAsked >= kDeviceSeconds || time < m_devicesAsked)) {
        m_devicesAsked = time;
        m_devicesPending = m_deviceThread.ask([time, now](DeviceReader &reader) {
            return Answer{.readings = reader.read(time), .time = time, .instant = now};
        });
    }
    // A gap in the samples is no fault of the driver's: only an answer that was asked for and
    // does not come makes the last one stale.
    const bool isStale =
        m_devicesPending.valid() && time - m_devicesAsked > kStaleSeconds && m_devices;
    for (const auto &[metric, source] : kDeviceMetrics) {
        if (!m_devices || isStale) {
            findings[metric] =
                missing(isStale ? MetricState::stale : MetricState::warmingUp, source);
        } else {
            report(snapshot, metric, m_devices->readings.findings[metric], m_devices->instant);
        }
    }
    if (m_devices && !isStale) {
        snapshot.accessories = m_devices->readings.accessories;
    }
    Finding &compressed = findings[MetricID::memoryCompressed];
    if (!m_devices || isStale) { // half of it is no figure
        compressed =
            missing(isStale ? MetricState::stale : MetricState::warmingUp, kZramSource);
    } else if (m_devices->readings.zramBytes) {
        compressed =
            found(compressed.value.value_or(0) + *m_devices->readings.zramBytes, kZramSource);
    }
}

// The whole machine's score is that of its processors, disks and network.
void LinuxCollector::addEnergy(Findings &findings) const
{
    double traffic = 0;
    for (const MetricID metric :
         {MetricID::diskRead, MetricID::diskWrite, MetricID::download, MetricID::upload}) {
        traffic += findings[metric].value.value_or(0);
    }
    Finding &energy = findings[MetricID::energyImpact];
    const Finding &cpu = findings[MetricID::cpu];
    energy = cpu.value ? found(energyScore(*cpu.value * m_cores, traffic), "cpu, disk, network")
                       : missing(cpu.state, cpu.source);
}

} // namespace MonitorLinux
