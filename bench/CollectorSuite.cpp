// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Instant.h"
#include "MonitorLinux/LinuxCollector.h"
#include "bench/Bench.h"

#include <fmt/format.h>

#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>

namespace Bench
{

namespace
{

constexpr int kRounds = 15;

// What the work costs the processor, which a busy machine changes less than its duration.
double cpuOf(const std::function<void()> &work)
{
    const double start = cpuSeconds(RUSAGE_SELF);
    work();
    return cpuSeconds(RUSAGE_SELF) - start;
}

Pair cpuByTurns(const std::function<void()> &work, const std::function<void()> &floor)
{
    std::vector<double> works;
    std::vector<double> floors;
    for (int round = 0; round < kRounds; ++round) {
        works.push_back(cpuOf(work));
        floors.push_back(cpuOf(floor));
    }
    std::ranges::sort(works);
    std::ranges::sort(floors);
    return {.value = works[kRounds / 2], .floor = floors[kRounds / 2]};
}

// Processes that do nothing until they go with this object.
class Sleepers
{
public:
    // Until the machine runs so many processes, or more if it did before.
    void growTo(std::size_t count)
    {
        std::vector<std::int32_t> running;
        MonitorLinux::Folder{"/proc"}.numbers(running);
        for (std::size_t at = running.size(); at < count; ++at) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::prctl(PR_SET_PDEATHSIG, SIGKILL);
                while (true) {
                    ::pause();
                }
            }
            if (pid < 0) {
                giveUp("cannot start so many processes");
            }
            m_pids.push_back(pid);
        }
    }

    Sleepers() = default;
    Sleepers(const Sleepers &) = delete;
    Sleepers &operator=(const Sleepers &) = delete;
    ~Sleepers()
    {
        for (const pid_t pid : m_pids) {
            ::kill(pid, SIGKILL);
        }
        for (const pid_t pid : m_pids) {
            ::waitpid(pid, nullptr, 0);
        }
    }

private:
    std::vector<pid_t> m_pids;
};

// The floor: every process's first file, opened, read and closed, nothing understood.
void readEveryStat()
{
    const MonitorLinux::Folder proc{"/proc"};
    std::vector<std::int32_t> pids;
    proc.numbers(pids);
    for (const std::int32_t pid : pids) {
        std::array<char, 2048> buffer; // NOLINT(*-init-variables): the kernel fills it
        (void)proc.read((std::to_string(pid) + "/stat").c_str(), buffer);
    }
}

// One refresh of the usual console program, without its start; 0 where it is not installed.
double cpuOfConsoleProgram()
{
    if (::access("/usr/bin/top", X_OK) != 0) {
        return 0;
    }
    const auto refreshes = [](const char *count) {
        const double start = cpuSeconds(RUSAGE_CHILDREN);
        runProgram({"/usr/bin/top", "-b", "-d", "0.1", "-n", count});
        return cpuSeconds(RUSAGE_CHILDREN) - start;
    };
    const double one = refreshes("1");
    return std::max(0.0, refreshes("11") - one) / 10;
}

void measure(std::size_t processes, double most, std::vector<Row> &rows)
{
    using MonitorCore::SampleScope;
    MonitorLinux::LinuxCollector collector;
    const auto sample = [&] {
        (void)collector.sample(SampleScope::processes, Base::wallClock());
    };
    sample();
    const Pair cpu = cpuByTurns(sample, readEveryStat);
    const std::string name = fmt::format("cpu of a sample of {} processes", processes);
    rows.push_back(durationRow(name, cpu, most));
    rows.push_back(ratioRow("the same against reading every stat", cpu, 1.5));
    if (const double other = cpuOfConsoleProgram(); other > 0) {
        rows.push_back(ratioRow("the same against one refresh of top",
                                {.value = cpu.value, .floor = other}, 1.0));
    }
    MonitorLinux::LinuxCollector fresh;
    const Pair first{
        .value = cpuOf([&] { (void)fresh.sample(SampleScope::processes, Base::wallClock()); }),
        .floor = cpu.floor};
    rows.push_back(ratioRow("the first sample, which reads everything", first, 6));
}

} // namespace

std::vector<Row> collectorSuite()
{
    std::vector<Row> rows;
    MonitorLinux::LinuxCollector collector;
    const auto machineOnly = [&] {
        (void)collector.sample(MonitorCore::SampleScope::system, Base::wallClock());
    };
    std::string text;
    const MonitorLinux::Folder proc{"/proc"};
    const auto readOnly = [&] {
        for (const char *name :
             {"stat", "meminfo", "pressure/memory", "diskstats", "net/dev"}) {
            (void)proc.readWhole(name, text);
        }
    };
    machineOnly();
    rows.push_back(durationRow("cpu of a sample of the machine alone",
                               measureByTurns(200, machineOnly, readOnly), 0.0002));
    Sleepers sleepers;
    sleepers.growTo(400);
    measure(400, 0.006, rows);
    sleepers.growTo(5000);
    measure(5000, 0.070, rows);
    return rows;
}

} // namespace Bench
