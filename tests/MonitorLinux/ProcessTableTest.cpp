// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcessTable.h"

#include "tests/MonitorLinux/Machine.h"

#include <gmock/gmock.h>

#include <unistd.h>

using namespace MonitorLinux;
using MonitorCore::RawSample;

namespace
{

const std::uint64_t kTicks = static_cast<std::uint64_t>(::sysconf(_SC_CLK_TCK));

RawSample pass(ProcessTable &table, double time)
{
    RawSample sample;
    table.sample(time, sample);
    EXPECT_EQ(sample.origins.size(), sample.processes.size());
    return sample;
}

TEST(ProcessTable, TellsWhatAProcessIsAndUses)
{
    Machine machine;
    machine.process({.pid = 9, .start = 5});
    machine.process({.pid = 412, .start = 50, .ticks = 100});
    ProcessTable table{machine.proc()};
    auto first = pass(table, 1000);
    ASSERT_EQ(first.processes.size(), 2U);
    EXPECT_EQ(first.processes[1].cpu, 0); // it has no second sample
    machine.process({.pid = 412, .start = 50, .ticks = 100 + kTicks / 2, .written = 4096});
    const auto sample = pass(table, 1002);
    const auto &process = sample.processes.at(1);
    EXPECT_EQ(process.key.id(), "412:50");
    EXPECT_EQ(process.owner, ::geteuid());
    EXPECT_EQ(process.executable, "/usr/bin/tool");
    EXPECT_EQ(process.directory, "/home/someone");
    EXPECT_DOUBLE_EQ(process.cpu, 25); // of one core
    EXPECT_DOUBLE_EQ(process.memory, 200.0 * static_cast<double>(::sysconf(_SC_PAGESIZE)));
    EXPECT_DOUBLE_EQ(process.diskWrite, 2048);
    EXPECT_EQ(sample.origins.at(1).cgroup, "/user.slice/app.scope");
    EXPECT_EQ(sample.origins.at(1).session, 7);
}

TEST(ProcessTable, TakesAReusedNumberForAnotherProcess)
{
    Machine machine;
    machine.process({.pid = 412, .start = 50, .ticks = 1'000'000, .written = 1 << 30});
    ProcessTable table{machine.proc()};
    pass(table, 1000);
    machine.process({.pid = 412, .start = 1001 * kTicks, .ticks = kTicks, .written = 2000});
    machine.link("proc/412/exe", "/usr/bin/other (deleted)");
    const auto process = pass(table, 1002).processes.at(0);
    EXPECT_EQ(process.executable, "/usr/bin/other");
    // Born since the last pass, it used all that it has since then.
    EXPECT_DOUBLE_EQ(process.cpu, 50);
    EXPECT_DOUBLE_EQ(process.diskWrite, 1000);
}

TEST(ProcessTable, ReadsTheRestOfAQuietProcessInTurns)
{
    Machine machine;
    machine.process({.pid = 412, .start = 50, .ticks = 100});
    ProcessTable table{machine.proc()};
    pass(table, 1000);
    pass(table, 1001);
    machine.process({.pid = 412, .start = 50, .ticks = 100, .written = 7000});
    machine.link("proc/412/cwd", "/elsewhere");
    double highest = 0;
    std::optional<std::string> directory;
    for (int at = 2; at <= 128; ++at) {
        const auto process = pass(table, 1000 + at).processes.at(0);
        highest = std::max(highest, process.diskWrite);
        directory = process.directory;
    }
    EXPECT_DOUBLE_EQ(highest, 100); // over the 70 s in which nobody looked, and no burst
    EXPECT_EQ(directory, "/elsewhere");
}

TEST(ProcessTable, FollowsWhoWritesLittleAllTheTime)
{
    Machine machine;
    machine.process({.pid = 412, .start = 50, .ticks = 100});
    ProcessTable table{machine.proc()};
    pass(table, 1000);
    std::vector<double> rates;
    for (std::uint64_t at = 1; at <= 40; ++at) { // never a clock tick, so quiet all along
        machine.process({.pid = 412, .start = 50, .ticks = 100, .written = 64'000 * at});
        rates.push_back(pass(table, 1000 + static_cast<double>(at)).processes.at(0).diskWrite);
    }
    EXPECT_THAT(rates, testing::Each(64'000));
}

TEST(ProcessTable, SeesAnotherProgramAtOnce)
{
    Machine machine;
    machine.process({.pid = 412, .start = 50, .name = "sh"});
    ProcessTable table{machine.proc()};
    pass(table, 1000);
    machine.process({.pid = 412, .start = 50, .name = "a-very-long-nam"});
    machine.link("proc/412/exe", "/opt/a-very-long-name-indeed");
    const auto process = pass(table, 1001).processes.at(0);
    EXPECT_EQ(process.executable, "/opt/a-very-long-name-indeed");
    EXPECT_EQ(process.name, "a-very-long-name-indeed"); // the kernel cut it short
}

TEST(ProcessTable, GivesNoRateAcrossASleepOrABackwardCounter)
{
    Machine machine;
    machine.process({.pid = 412, .start = 50});
    ProcessTable table{machine.proc()};
    double time = 1000;
    for (const auto &[seconds, ticks, cpu] :
         {std::tuple{0.0, 10UL, 0.0}, std::tuple{90.5, 20 * kTicks, 0.0},
          std::tuple{1.0, 5 * kTicks, 0.0}, std::tuple{2.0, 6 * kTicks, 50.0}}) {
        machine.process({.pid = 412, .start = 50, .ticks = ticks});
        time += seconds;
        EXPECT_DOUBLE_EQ(pass(table, time).processes.at(0).cpu, cpu) << ticks;
    }
}

TEST(ProcessTable, CountsThoseWhoseTrafficItMayNotSee)
{
    const OrdinaryUser user;
    Machine machine;
    machine.process({.pid = 412, .start = 50});
    machine.process({.pid = 413, .start = 50});
    machine.forbid("proc/413/io");
    ProcessTable table{machine.proc()};
    user.does([&] { pass(table, 1000); });
    machine.process({.pid = 412, .start = 50, .ticks = 9, .written = 4096});
    RawSample sample;
    user.does([&] { sample = pass(table, 1002); });
    EXPECT_EQ(sample.snapshot.restrictedProcessCount, 1);
    EXPECT_DOUBLE_EQ(sample.processes.at(0).diskWrite, 2048);
}

TEST(ProcessTable, LivesWithWhatIsMissing)
{
    Machine machine;
    machine.process({.pid = 5, .start = 1});
    machine.add("proc/6"); // went while it was read
    machine.process({.pid = 7, .start = 1});
    for (const char *file : {"statm", "io", "cgroup", "exe", "cwd"}) {
        machine.remove(std::string{"proc/7/"} + file);
    }
    machine.write("proc/8/stat", "9 (someone else) S 1 1 1");
    ProcessTable table{machine.proc()};
    const auto sample = pass(table, 1000);
    ASSERT_EQ(sample.processes.size(), 2U);
    EXPECT_EQ(sample.processes[1].directory, std::nullopt);
    EXPECT_EQ(sample.processes[1].memory, 0);
    ProcessTable nowhere{machine.root() + "/none"};
    EXPECT_TRUE(pass(nowhere, 1000).processes.empty());
}

} // namespace
