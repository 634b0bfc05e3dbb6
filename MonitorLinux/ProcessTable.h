// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MonitorCore/Collector.h"
#include "MonitorCore/CounterRate.h"
#include "MonitorLinux/Folder.h"
#include "MonitorLinux/ProcParsers.h"

#include <optional>
#include <string>
#include <vector>

namespace MonitorLinux
{

// The processes of /proc, remembered from one pass to the next. A pass reads one file of each
// process and more only where that one says that something happened; what hardly ever changes
// (owner, executable, folder, cgroup) is read again on a change of the name, and in turns. Of
// the first hundreds of processes that one file stays open, which halves its cost.
//
// Memory is what is resident and shared with no file and no shared memory, swap left out. Pages
// that a process has shared with its parent since it was forked count for both: to tell them
// apart costs a thousand times as much. Traffic of the network is not told apart by process on
// this system and stays 0.
class ProcessTable
{
public:
    // `proc` is "/proc" or a folder that stands in for it.
    explicit ProcessTable(const std::string &proc);

    // Appends to the sample's processes and origins and counts those whose disk traffic may
    // not be seen. `time` is in seconds since boot.
    void sample(double time, MonitorCore::RawSample &sample);

    // The ports that the process listens on now, ascending; none when it has gone.
    std::vector<std::uint16_t> portsOf(const MonitorCore::ProcessKey &process) const;

private:
    // One process as the last pass left it.
    struct Known {
        MonitorCore::ProcessSample shown{};
        MonitorCore::ProcessOrigin origin{};
        Base::FileDescriptor stat{}; // open while there is room for it
        std::string kernelName{};    // its bytes as they are; a change means another program
        MonitorCore::CounterRate cpu{};
        MonitorCore::CounterRate read{};
        MonitorCore::CounterRate written{};
        std::uint64_t cpuTicks{};
        std::uint64_t faults{};
        std::uint64_t residentPages{};
        bool isTrafficDenied{};
        bool isTrafficStill{}; // between the last two times that it was read
    };

    std::string_view readStat(std::int32_t pid, Known &known, std::span<char> buffer);
    bool visit(std::int32_t pid, Known &known, double time);
    Known firstSight(const ProcessStat &stat, Base::FileDescriptor file) const;
    void readDetails(const ProcessStat &stat, Known &known) const;
    void readMemory(const ProcessStat &stat, Known &known) const;
    void readTraffic(const ProcessStat &stat, bool isQuiet, double time, Known &known) const;
    bool isDue(std::int32_t pid, unsigned passes) const;
    std::size_t openFiles() const;

    Folder m_proc;
    double m_ticksPerSecond;
    double m_pageBytes;
    std::vector<std::int32_t> m_pids;
    std::vector<Known> m_known; // ascending by process number
    std::vector<Known> m_next;  // kept for its room
    std::optional<double> m_lastPass;
    unsigned m_passes{};
    std::size_t m_roomForFiles{}; // how many more may stay open
};

} // namespace MonitorLinux
