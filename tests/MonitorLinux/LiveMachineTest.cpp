// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/LinuxCollector.h"
#include "MonitorLinux/ProcessEnding.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <arpa/inet.h>
#include <fcntl.h>
#include <linux/magic.h>
#include <net/if.h>
#include <net/route.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/statfs.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <ctime>
#include <functional>
#include <thread>

using namespace MonitorLinux;
using namespace std::chrono_literals;

namespace
{

// A real process that does `work` in steps: it stops itself before each and waits to be
// woken, so that it stands still whenever the collector looks.
class Child
{
public:
    explicit Child(const std::function<void()> &work)
    {
        m_pid = ::fork();
        if (m_pid == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL);
            while (true) {
                ::raise(SIGSTOP);
                work();
            }
        }
        waitForStop();
    }
    ~Child()
    {
        ::kill(m_pid, SIGKILL);
        ::waitpid(m_pid, nullptr, 0);
    }
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    pid_t pid() const { return m_pid; }
    void doOneStep()
    {
        ::kill(m_pid, SIGCONT);
        waitForStop();
    }
    double cpuSeconds() const
    {
        clockid_t clock{};
        timespec time{};
        ::clock_getcpuclockid(m_pid, &clock);
        ::clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

private:
    void waitForStop() const
    {
        int status = 0;
        ASSERT_EQ(::waitpid(m_pid, &status, WUNTRACED), m_pid);
        ASSERT_TRUE(WIFSTOPPED(status));
    }

    pid_t m_pid{};
};

struct Seen {
    MonitorCore::ProcessSample process{};
    double interval{};
};

Seen look(LinuxCollector &collector, pid_t pid)
{
    const auto sample =
        collector.sample(MonitorCore::SampleScope::processes, Base::wallClock());
    const auto found = std::ranges::find(sample.processes, pid,
                                         [](const auto &process) { return process.key.pid; });
    if (found == sample.processes.end()) {
        ADD_FAILURE() << "the child is not in the list";
        return {};
    }
    return {.process = *found, .interval = sample.snapshot.interval};
}

TEST(LiveMachine, MeasuresAnAllocation)
{
    constexpr std::size_t kBytes = std::size_t{256} << 20;
    Child child{[] {
        // The kernel fills the pages: what a sanitizer notes of each write would count too.
        (void)::mmap(nullptr, kBytes, PROT_READ | PROT_WRITE,
                     MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
    }};
    LinuxCollector collector;
    const double before = look(collector, child.pid()).process.memory;
    child.doOneStep();
    const double after = look(collector, child.pid()).process.memory;
    EXPECT_NEAR(after - before, static_cast<double>(kBytes), 0.02 * kBytes);
}

TEST(LiveMachine, MeasuresAShareOfACore)
{
    // Uses the processor for 0.6 s of its own time, then sleeps: what share that is depends on
    // how busy the machine is, and the child's own clock says so.
    Child child{[] {
        const auto own = [] {
            timespec time{};
            ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
            return time.tv_sec * 1'000'000 + time.tv_nsec / 1000;
        };
        const auto start = own();
        while (own() - start < 600'000) {
        }
        ::usleep(1'400'000);
    }};
    LinuxCollector collector;
    look(collector, child.pid());
    const double before = child.cpuSeconds();
    child.doOneStep();
    const double used = child.cpuSeconds() - before;
    const auto [process, interval] = look(collector, child.pid());
    ASSERT_GT(used, 0.5);
    EXPECT_NEAR(process.cpu, 100 * used / interval, 2);
}

TEST(LiveMachine, MeasuresWhatAChildWrites)
{
    const TemporaryFolder folder;
    struct statfs about{};
    ASSERT_EQ(::statfs(folder.path().c_str(), &about), 0);
    if (about.f_type == TMPFS_MAGIC) {
        GTEST_SKIP() << "temporary files lie in memory here, which no disk sees";
    }
    constexpr std::size_t kBytes = std::size_t{32} << 20;
    const std::string file = (folder.path() / "written").string();
    const std::vector<char> bytes(kBytes, 'x');
    Child child{[&] {
        const int out = ::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        if (::write(out, bytes.data(), bytes.size()) < 0) {
            ::_exit(1);
        }
        ::close(out);
    }};
    LinuxCollector collector;
    look(collector, child.pid());
    child.doOneStep();
    const auto [process, interval] = look(collector, child.pid());
    EXPECT_NEAR(process.diskWrite * interval, static_cast<double>(kBytes), 0.02 * kBytes);
}

TEST(LiveMachine, KeepsOddNamesWhole)
{
    Child child{[] { ::prctl(PR_SET_NAME, ") R 1 (\n\xD8"); }};
    LinuxCollector collector;
    child.doOneStep();
    const auto process = look(collector, child.pid()).process;
    EXPECT_EQ(process.name, ") R 1 (\n\xEF\xBF\xBD");
    EXPECT_EQ(process.parentPID, ::getpid());
    EXPECT_EQ(process.executable, std::filesystem::read_symlink("/proc/self/exe"));
    EXPECT_EQ(process.directory, std::filesystem::current_path());
}

TEST(LiveMachine, SurvivesProcessesThatComeAndGo)
{
    std::atomic<bool> isDone{false};
    std::jthread churn{[&] {
        while (!isDone) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::_exit(0);
            }
            ::waitpid(pid, nullptr, 0);
        }
    }};
    LinuxCollector collector;
    for (int round = 0; round < 30; ++round) {
        const auto own = look(collector, ::getpid()).process;
        EXPECT_NE(own.key.start, 0U);
    }
    isDone = true;
}

TEST(LiveMachine, FindsThePortThatAProcessListensOn)
{
    const Base::FileDescriptor server{::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    ASSERT_EQ(::bind(server.get(), plain, size), 0);
    ASSERT_EQ(::getsockname(server.get(), plain, &size), 0);
    LinuxCollector collector;
    const auto key = look(collector, ::getpid()).process.key;
    EXPECT_THAT(collector.portsOf(key), testing::IsEmpty());
    ASSERT_EQ(::listen(server.get(), 1), 0);
    EXPECT_THAT(collector.portsOf(key), testing::ElementsAre(ntohs(address.sin_port)));
    EXPECT_THAT(collector.portsOf({.pid = key.pid, .start = key.start + 1}),
                testing::IsEmpty());
}

TEST(LiveMachine, EndsOnlyWhatItMayEnd)
{
    Child child{[] {}};
    LinuxCollector collector;
    const auto key = look(collector, child.pid()).process.key;
    const auto own = look(collector, ::getpid()).process.key;
    const auto ends = [&](const std::vector<MonitorCore::ProcessKey> &processes) {
        const auto done = endProcesses(collector, processes, Ending::kill);
        return done ? "" : done.error().message;
    };
    EXPECT_EQ(ends({{.pid = key.pid, .start = key.start + 1}}),
              "This process has ended already.");
    EXPECT_EQ(ends({key, own}), "Velvetnook itself runs under this process.");
    EXPECT_NE(look(collector, child.pid()).process.key.start, 0U); // neither did anything
    EXPECT_EQ(ends({key}), "");
    siginfo_t how{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(child.pid()), &how, WEXITED | WNOWAIT), 0);
    EXPECT_EQ(how.si_status, SIGKILL);
}

// A network of the process's own, in which only the loopback interface is and leads out.
bool enterOwnNetwork()
{
    if (::unshare(CLONE_NEWNET) != 0 && ::unshare(CLONE_NEWUSER | CLONE_NEWNET) != 0) {
        return false;
    }
    const Base::FileDescriptor control{::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    ifreq loopback{};
    std::ranges::copy(std::string_view{"lo"}, loopback.ifr_name);
    loopback.ifr_flags = IFF_UP | IFF_RUNNING;
    rtentry route{};
    for (sockaddr *const address : {&route.rt_dst, &route.rt_genmask, &route.rt_gateway}) {
        address->sa_family = AF_INET;
    }
    route.rt_flags = RTF_UP;
    route.rt_dev = loopback.ifr_name;
    return ::ioctl(control.get(), SIOCSIFFLAGS, &loopback) == 0 &&
           ::ioctl(control.get(), SIOCADDRT, &route) == 0;
}

constexpr int kPackets = 5000;
constexpr std::size_t kPacketBytes = 1000;

void sendPackets()
{
    const Base::FileDescriptor from{::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    const Base::FileDescriptor to{::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)};
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const plain = reinterpret_cast<sockaddr *>(&address);
    (void)::bind(to.get(), plain, size);
    (void)::getsockname(to.get(), plain, &size);
    const std::array<char, kPacketBytes> bytes{};
    for (int at = 0; at < kPackets; ++at) {
        (void)::sendto(from.get(), bytes.data(), bytes.size(), 0, plain, size);
    }
}

// In a process of its own, which can't go back: the bytes that came and went, as measured.
[[noreturn]] void measureTraffic(int results)
{
    std::array<double, 2> bytes{};
    if (enterOwnNetwork()) {
        LinuxCollector collector;
        const auto sample = [&] {
            return collector.sample(MonitorCore::SampleScope::system, Base::wallClock())
                .snapshot;
        };
        sample();
        sendPackets();
        const auto after = sample();
        for (const auto &[at, metric] : {std::pair{std::size_t{0}, MetricID::download},
                                         std::pair{std::size_t{1}, MetricID::upload}}) {
            bytes.at(at) = after.readings.at(metric).value.value_or(-1) * after.interval;
        }
        if (::write(results, bytes.data(), sizeof bytes) < 0) {
            ::_exit(1);
        }
    }
    ::_exit(0);
}

TEST(LiveMachine, MeasuresWhatANetworkCarries)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    const pid_t pid = ::fork();
    if (pid == 0) {
        measureTraffic(ends[1]);
    }
    ::close(ends[1]);
    const Base::FileDescriptor results{ends[0]};
    std::array<double, 2> bytes{};
    const ssize_t size = ::read(results.get(), bytes.data(), sizeof bytes);
    ::waitpid(pid, nullptr, 0);
    if (size == 0) {
        GTEST_SKIP() << "this user may not make a network of its own here";
    }
    // Each packet has the headers of its three layers.
    constexpr double kExpected = kPackets * (kPacketBytes + 8.0 + 20.0 + 14.0);
    EXPECT_NEAR(bytes[0], kExpected, 0.02 * kExpected);
    EXPECT_NEAR(bytes[1], kExpected, 0.02 * kExpected);
}

} // namespace
