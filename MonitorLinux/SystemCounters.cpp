// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/LinuxCollector.h"

#include <sys/statvfs.h>

#include <algorithm>
#include <array>
#include <utility>

// What the collector reads itself at every sample: files that the kernel answers at once.
namespace MonitorLinux
{

using MonitorCore::NetworkCounter;

namespace
{

// The kernel lets the idle counters step back a little at times.
double grown(std::uint64_t before, std::uint64_t now)
{
    return now > before ? static_cast<double>(now - before) : 0;
}

} // namespace

void LinuxCollector::sampleCpu(double time, Findings &findings)
{
    const std::string source = "/proc/stat";
    const auto now = parseCpuTicks(m_proc.readWhole("stat", m_buffer).text);
    const auto before = std::exchange(m_cpu, now);
    const double gap = m_lastTime ? time - *m_lastTime : 0;
    const bool isSpan = before && now && gap > 0 && gap <= MonitorCore::kLongestGapSeconds;
    const double user = isSpan ? grown(before->user, now->user) : 0;
    const double system = isSpan ? grown(before->system, now->system) : 0;
    const double idle = isSpan ? grown(before->idle, now->idle) : 0;
    const double stolen = isSpan ? grown(before->stolen, now->stolen) : 0;
    const double all = user + system + idle + stolen;
    for (const auto &[metric, ticks] :
         {std::pair{MetricID::cpu, user + system}, std::pair{MetricID::cpuUser, user},
          std::pair{MetricID::cpuSystem, system}, std::pair{MetricID::cpuIdle, idle}}) {
        findings[metric] =
            now ? foundRate(all > 0 ? std::optional{100 * ticks / all} : std::nullopt, source)
                : missing(MetricState::unsupported, source);
    }
}

void LinuxCollector::sampleMemory(Findings &findings)
{
    const std::string source = "/proc/meminfo";
    const auto memory = parseMemory(m_proc.readWhole("meminfo", m_buffer).text);
    const auto put = [&](MetricID metric, std::optional<std::uint64_t> bytes) {
        findings[metric] = foundOrUnsupported(
            bytes ? std::optional{static_cast<double>(*bytes)} : std::nullopt, source);
    };
    put(MetricID::memoryUsed, memory ? std::optional{memory->used} : std::nullopt);
    put(MetricID::memoryTotal, memory ? std::optional{memory->total} : std::nullopt);
    put(MetricID::memoryWired, memory ? std::optional{memory->wired} : std::nullopt);
    put(MetricID::memoryCompressed, memory ? memory->zswap : std::nullopt);
    findings[MetricID::memoryPressure] =
        foundOrUnsupported(parsePressure(m_proc.readWhole("pressure/memory", m_buffer).text),
                           "/proc/pressure/memory");
}

// A disk has a device behind it; partitions, device-mapper, RAID and loop devices, which
// carry the same bytes again, have none.
bool LinuxCollector::isPhysicalDisk(std::string_view name) const
{
    if (!m_sys.has("block")) {
        return isWholeDiskName(name);
    }
    return m_sys.has(("block/" + std::string{name} + "/device").c_str());
}

void LinuxCollector::sampleDisks(double time, Findings &findings)
{
    struct statvfs space{};
    const bool hasSpace = ::statvfs(m_root.c_str(), &space) == 0;
    const auto bytes = [&](fsblkcnt_t blocks) {
        return hasSpace ? std::optional{static_cast<double>(blocks) *
                                        static_cast<double>(space.f_frsize)}
                        : std::nullopt;
    };
    findings[MetricID::diskFree] = foundOrUnsupported(bytes(space.f_bavail), "statvfs");
    findings[MetricID::diskTotal] = foundOrUnsupported(bytes(space.f_blocks), "statvfs");

    const std::string source = "/proc/diskstats";
    parseDiskStats(m_proc.readWhole("diskstats", m_buffer).text, m_rows);
    m_counters.clear();
    for (const Traffic &row : m_rows) {
        m_counters.push_back({.name = std::string{row.name},
                              .received = row.in,
                              .sent = row.out,
                              .physical = isPhysicalDisk(row.name)});
    }
    const auto [read, written] = m_disks.update(m_counters, time);
    const bool hasDisk = std::ranges::any_of(m_counters, &NetworkCounter::physical);
    for (const auto &[metric, rate] :
         {std::pair{MetricID::diskRead, read}, std::pair{MetricID::diskWrite, written}}) {
        findings[metric] =
            hasDisk ? foundRate(rate, source) : missing(MetricState::unsupported, source);
    }
}

// An interface is physical when it has a device; bridges, tunnels and bonds carry the same
// bytes again. Where none has (a container, or no /sys), the ones that lead out count.
std::vector<NetworkCounter> LinuxCollector::networkCounters()
{
    parseNetDev(m_proc.readWhole("net/dev", m_buffer).text, m_rows);
    std::vector<NetworkCounter> counters;
    for (const Traffic &row : m_rows) {
        const std::string device = "class/net/" + std::string{row.name} + "/device";
        counters.push_back({.name = std::string{row.name},
                            .received = row.in,
                            .sent = row.out,
                            .physical = m_sys.has(device.c_str())});
    }
    if (std::ranges::none_of(counters, &NetworkCounter::physical)) {
        const auto count = [&](const std::vector<std::string_view> &routes) {
            for (NetworkCounter &counter : counters) {
                counter.physical =
                    counter.physical || std::ranges::count(routes, counter.name) > 0;
            }
        };
        count(parseDefaultRoutes(m_proc.readWhole("net/route", m_buffer).text));
        count(parseDefaultRoutes6(m_proc.readWhole("net/ipv6_route", m_buffer).text));
    }
    return counters;
}

void LinuxCollector::sampleNetwork(double time, Findings &findings)
{
    const std::string source = "/proc/net/dev";
    const auto counters = networkCounters();
    const auto [download, upload] = m_network.update(counters, time);
    const bool hasInterface = std::ranges::any_of(counters, &NetworkCounter::physical);
    for (const auto &[metric, rate] :
         {std::pair{MetricID::download, download}, std::pair{MetricID::upload, upload}}) {
        findings[metric] =
            hasInterface ? foundRate(rate, source) : missing(MetricState::unsupported, source);
    }
}

} // namespace MonitorLinux
