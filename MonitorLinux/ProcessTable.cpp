// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessTable.h"

#include "MonitorLinux/EnergyImpact.h"

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <climits>

namespace MonitorLinux
{

namespace
{

using MonitorCore::ProcessKey;

constexpr std::size_t kStatBytes = 2048; // 52 numbers and a name, with room to spare
constexpr std::size_t kKernelNameBytes = 15;
constexpr unsigned kPassesBetweenDetails = 32;
constexpr unsigned kQuietPassesBetweenDetails = 128;
constexpr double kQuietSecondsBetweenTraffic = 40; // and up to as many more, to spread them
constexpr std::size_t kMostOpenFiles = 512;        // the kernel holds some 5 kB for each
constexpr double kStartSlack = 0.05;               // start times are whole clock ticks

// "123/stat" without an allocation.
class ProcessPath
{
public:
    explicit ProcessPath(std::int32_t pid)
        : m_end(std::to_chars(m_text.data(), m_text.data() + m_text.size(), pid).ptr)
    {
        *m_end = '\0';
    }

    const char *folder()
    {
        *m_end = '\0';
        return m_text.data();
    }

    // `name` begins with a slash and is a literal of at most ten letters.
    const char *file(std::string_view name)
    {
        *std::ranges::copy(name, m_end).out = '\0';
        return m_text.data();
    }

private:
    std::array<char, 32> m_text;
    char *m_end;
};

// The kernel cuts names short; the file's own name says the rest.
std::string fullName(std::string_view kernelName, std::string_view executable)
{
    const std::string_view file = executable.substr(executable.rfind('/') + 1);
    const bool isCut = kernelName.size() == kKernelNameBytes && file.starts_with(kernelName);
    return asUtf8(isCut ? file : kernelName);
}

std::string_view withoutDeletedMark(std::string_view path)
{
    constexpr std::string_view kMark = " (deleted)"; // such as by an update of the program
    return path.ends_with(kMark) ? path.substr(0, path.size() - kMark.size()) : path;
}

// At most half of what this program may have open at all.
std::size_t mostOpenFiles()
{
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    return std::min<std::size_t>(kMostOpenFiles, limit.rlim_cur / 2);
}

} // namespace

ProcessTable::ProcessTable(const std::string &proc)
    : m_proc(proc), m_ticksPerSecond(static_cast<double>(::sysconf(_SC_CLK_TCK))),
      m_pageBytes(static_cast<double>(::sysconf(_SC_PAGESIZE)))
{
}

void ProcessTable::sample(double time, MonitorCore::RawSample &sample)
{
    m_proc.numbers(m_pids);
    m_next.reserve(m_pids.size());
    sample.processes.reserve(m_pids.size());
    sample.origins.reserve(m_pids.size());
    const std::size_t most = mostOpenFiles();
    m_roomForFiles = most - std::min(most, openFiles());
    auto known = m_known.begin();
    for (const std::int32_t pid : m_pids) {
        while (known != m_known.end() && known->shown.key.pid < pid) {
            ++known;
        }
        const bool isKnown = known != m_known.end() && known->shown.key.pid == pid;
        auto &now = m_next.emplace_back(isKnown ? std::move(*known) : Known{});
        if (!visit(pid, now, time)) {
            m_next.pop_back();
            continue;
        }
        sample.processes.push_back(now.shown);
        sample.origins.push_back(now.origin);
        sample.snapshot.restrictedProcessCount += now.isTrafficDenied ? 1 : 0;
    }
    std::swap(m_known, m_next);
    m_next.clear(); // closes the files of those that have gone
    m_lastPass = time;
    ++m_passes;
}

std::size_t ProcessTable::openFiles() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(m_known, [](const Known &known) { return known.stat.isOpen(); }));
}

// An open file belongs to one process: once that has gone it gives nothing, whoever has the
// number then.
std::string_view ProcessTable::readStat(std::int32_t pid, Known &known, std::span<char> buffer)
{
    if (known.stat.isOpen()) {
        if (const ReadText read = Folder::read(known.stat, buffer); !read.text.empty()) {
            return read.text;
        }
    }
    known.stat = m_proc.open(ProcessPath{pid}.file("/stat"));
    const ReadText read = Folder::read(known.stat, buffer);
    if (m_roomForFiles == 0) {
        known.stat = {};
    } else {
        --m_roomForFiles;
    }
    return read.text;
}

// Brings what is known up to date; false when the process has gone meanwhile.
bool ProcessTable::visit(std::int32_t pid, Known &known, double time)
{
    std::array<char, kStatBytes> buffer;
    const auto stat = parseProcessStat(readStat(pid, known, buffer));
    if (!stat || stat->pid != pid) {
        return false;
    }
    const bool isSame = known.shown.key == ProcessKey{.pid = pid, .start = stat->start};
    if (!isSame) {
        known = firstSight(*stat, std::move(known.stat));
    }
    const bool isQuiet =
        isSame && stat->cpuTicks == known.cpuTicks && stat->faults == known.faults;
    if (!isSame || stat->name != known.kernelName ||
        isDue(pid, isQuiet ? kQuietPassesBetweenDetails : kPassesBetweenDetails)) {
        readDetails(*stat, known);
    }
    if (!isQuiet || stat->residentPages != known.residentPages) {
        readMemory(*stat, known);
    }
    auto &shown = known.shown;
    shown.parentPID = stat->parent;
    known.origin.session = stat->session;
    const double ticks = known.cpu.update(stat->cpuTicks, time).value_or(0);
    shown.cpu = 100 * ticks / m_ticksPerSecond;
    if (!stat->isKernelThread) {
        readTraffic(*stat, isQuiet, time, known);
    }
    shown.energy = energyScore(shown.cpu, shown.diskRead + shown.diskWrite);
    known.cpuTicks = stat->cpuTicks;
    known.faults = stat->faults;
    known.residentPages = stat->residentPages;
    return true;
}

// One that was born since the last pass had used nothing then, so its first figures are known.
ProcessTable::Known ProcessTable::firstSight(const ProcessStat &stat,
                                             Base::FileDescriptor file) const
{
    Known known;
    known.stat = std::move(file);
    known.shown.key = {.pid = stat.pid, .start = stat.start};
    known.origin.isKernelThread = stat.isKernelThread;
    const double born = static_cast<double>(stat.start) / m_ticksPerSecond;
    if (m_lastPass && born > *m_lastPass - kStartSlack) {
        for (auto *const rate : {&known.cpu, &known.read, &known.written}) {
            rate->previous = {0, *m_lastPass};
        }
    }
    return known;
}

// Spreads what is read again from time to time evenly over the passes.
bool ProcessTable::isDue(std::int32_t pid, unsigned passes) const
{
    return (m_passes + static_cast<unsigned>(pid)) % passes == 0;
}

void ProcessTable::readDetails(const ProcessStat &stat, Known &known) const
{
    std::array<char, PATH_MAX> buffer;
    ProcessPath path{stat.pid};
    auto &shown = known.shown;
    known.kernelName = stat.name;
    shown.owner = m_proc.owner(path.folder(), shown.owner);
    if (!stat.isKernelThread) {
        shown.executable = asUtf8(withoutDeletedMark(m_proc.link(path.file("/exe"), buffer)));
        const std::string_view directory = m_proc.link(path.file("/cwd"), buffer);
        shown.directory = directory.empty() ? std::nullopt : std::optional{asUtf8(directory)};
        known.origin.cgroup =
            asUtf8(parseCgroup(m_proc.read(path.file("/cgroup"), buffer).text));
        known.isTrafficDenied = false; // asks again
    }
    shown.name = fullName(stat.name, shown.executable);
}

void ProcessTable::readMemory(const ProcessStat &stat, Known &known) const
{
    std::array<char, 256> buffer;
    std::optional<std::uint64_t> pages{0};
    if (stat.residentPages > 0) {
        pages =
            parsePrivatePages(m_proc.read(ProcessPath{stat.pid}.file("/statm"), buffer).text);
    }
    if (pages) {
        known.shown.memory = static_cast<double>(*pages) * m_pageBytes;
    }
}

// A process that used no time of the processor and whose counters stood still when they were
// last read is taken to move nothing, and asked again after a while. What it then moved in
// less than a clock tick is a rate over that while, not a burst.
void ProcessTable::readTraffic(const ProcessStat &stat, bool isQuiet, double time,
                               Known &known) const
{
    if (known.isTrafficDenied) {
        return;
    }
    const double patience = kQuietSecondsBetweenTraffic * (1 + (stat.pid % 16) / 16.0);
    const auto &last = known.read.previous;
    if (isQuiet && known.isTrafficStill && last && time - last->second < patience) {
        return;
    }
    std::array<char, 512> buffer;
    const ReadText file = m_proc.read(ProcessPath{stat.pid}.file("/io"), buffer);
    known.isTrafficDenied = file.isDenied();
    if (const auto io = parseProcessIo(file.text)) {
        const auto read = known.read.update(io->readBytes, time);
        const auto written = known.written.update(io->writtenBytes, time);
        known.shown.diskRead = read.value_or(0);
        known.shown.diskWrite = written.value_or(0);
        known.isTrafficStill = read == 0.0 && written == 0.0;
    }
}

} // namespace MonitorLinux
