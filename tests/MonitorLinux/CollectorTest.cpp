// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/LinuxCollector.h"
#include "tests/MonitorLinux/Machine.h"

#include <gmock/gmock.h>

#include <thread>

using namespace MonitorLinux;
using MonitorCore::SampleScope;

namespace
{

// A laptop with a battery, one disk in two partitions, a mouse, and a processor whose energy
// counter it may read.
void makeLaptop(Machine &machine)
{
    machine.cpu(1000, 500, 8000);
    machine.write("proc/meminfo", "MemTotal: 1000 kB\nMemAvailable: 600 kB\nZswap: 4 kB\n");
    machine.write("proc/pressure/memory", "some avg10=1.50 avg60=0 avg300=0 total=1\n");
    machine.add("sys/block/nvme0n1/device");
    machine.add("sys/class/net/wlan0/device");
    machine.write("sys/block/zram0/mm_stat", " 9000 3000 4096 0 5000 0 0 0 0\n");
    machine.write("sys/class/power_supply/BAT0/uevent",
                  "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Discharging\n"
                  "POWER_SUPPLY_PRESENT=1\nPOWER_SUPPLY_POWER_NOW=10000000\n"
                  "POWER_SUPPLY_ENERGY_NOW=30000000\nPOWER_SUPPLY_ENERGY_FULL=40000000\n"
                  "POWER_SUPPLY_ENERGY_FULL_DESIGN=50000000\n");
    machine.write("sys/class/power_supply/AC/uevent",
                  "POWER_SUPPLY_TYPE=Mains\nPOWER_SUPPLY_ONLINE=0\n");
    machine.write("sys/class/power_supply/mouse/uevent",
                  "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_SCOPE=Device\n"
                  "POWER_SUPPLY_MODEL_NAME=Small Mouse\nPOWER_SUPPLY_CAPACITY=64\n");
    machine.write("sys/class/hwmon/hwmon0/name", "coretemp\n");
    machine.write("sys/class/hwmon/hwmon0/temp1_input", "48000\n");
    machine.write("sys/class/hwmon/hwmon0/temp1_label", "Package id 0\n");
    machine.write("sys/class/hwmon/hwmon0/temp2_input", "51000\n");
    machine.write("sys/class/hwmon/hwmon1/name", "nvme\n");
    machine.write("sys/class/hwmon/hwmon1/temp1_input", "70000\n");
    machine.write("sys/class/hwmon/hwmon1/fan1_input", "2100\n");
    machine.write("sys/class/drm/card0/device/gpu_busy_percent", "37\n");
    machine.write("sys/class/drm/card0/device/mem_info_vram_used", "1048576\n");
    machine.write("sys/class/powercap/intel-rapl:0/name", "package-0\n");
    machine.write("sys/class/powercap/intel-rapl:0/energy_uj", "1000000\n");
}

// A collector whose clock stands in for the machine's.
class CollectorOn
{
public:
    explicit CollectorOn(const Machine &machine)
        : m_collector(machine.root(), [this] { return m_time; })
    {
    }

    MonitorCore::RawSample after(double seconds, SampleScope scope = SampleScope::system)
    {
        m_time += seconds;
        return m_collector.sample(scope, Base::fromSeconds1970(m_time));
    }

    // Samples until the device thread has told what it found; the clock stands still.
    MonitorCore::MonitorSnapshot devicesAfter(double seconds)
    {
        auto sample = after(seconds);
        while (sample.snapshot.readings.at(MetricID::fanRPM).state == MetricState::warmingUp) {
            std::this_thread::yield();
            sample = after(0);
        }
        return sample.snapshot;
    }

private:
    double m_time = 1000;
    LinuxCollector m_collector;
};

std::string stateOf(const MonitorCore::MonitorSnapshot &snapshot, MetricID metric)
{
    return std::string{Base::textOf(snapshot.readings.at(metric).state)};
}

double valueOf(const MonitorCore::MonitorSnapshot &snapshot, MetricID metric)
{
    return snapshot.readings.at(metric).value.value_or(-1);
}

TEST(CollectorOnALaptop, ReadsEveryDevice)
{
    Machine machine;
    makeLaptop(machine);
    const auto snapshot = CollectorOn{machine}.devicesAfter(1);
    for (const auto &[metric, value] : {
             std::pair{MetricID::memoryUsed, 409'600.0},
             std::pair{MetricID::memoryPressure, 1.5},
             std::pair{MetricID::memoryCompressed, 4096.0 + 4096.0},
             std::pair{MetricID::battery, 75.0}, std::pair{MetricID::batteryHealth, 80.0},
             std::pair{MetricID::batteryMinutes, 180.0}, std::pair{MetricID::gpu, 37.0},
             std::pair{MetricID::gpuMemory, 1'048'576.0},
             std::pair{MetricID::cpuTemperature, 48.0}, // the package, not its hottest core
             std::pair{MetricID::fanRPM, 2100.0},
             std::pair{MetricID::powerWatts, 10.0}, // the battery's, on which all runs
         }) {
        EXPECT_NEAR(valueOf(snapshot, metric), value, 1e-9) << Base::textOf(metric);
    }
    ASSERT_EQ(snapshot.accessories.size(), 1U);
    EXPECT_EQ(snapshot.accessories[0].name, "Small Mouse");
    EXPECT_EQ(snapshot.accessories[0].percent, 64);
}

TEST(CollectorOnALaptop, SplitsTheProcessorsTimeAndWarmsUp)
{
    Machine machine;
    makeLaptop(machine);
    CollectorOn collector{machine};
    EXPECT_EQ(stateOf(collector.after(1).snapshot, MetricID::cpu), "warmingUp");
    machine.cpu(1030, 510, 8160);
    auto snapshot = collector.after(2).snapshot;
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::cpu), 20);
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::cpuUser), 15);
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::cpuIdle), 80);
    EXPECT_DOUBLE_EQ(snapshot.interval, 2);
    machine.cpu(1060, 520, 8150); // the idle counter steps back at times
    EXPECT_DOUBLE_EQ(valueOf(collector.after(2).snapshot, MetricID::cpu), 100);
    machine.cpu(9000, 9000, 9000);
    snapshot = collector.after(91).snapshot; // the machine slept
    EXPECT_EQ(stateOf(snapshot, MetricID::cpu), "warmingUp");
    EXPECT_EQ(stateOf(snapshot, MetricID::energyImpact), "warmingUp");
}

TEST(CollectorOnALaptop, MeasuresTheProcessorsPowerOnMains)
{
    Machine machine;
    makeLaptop(machine);
    machine.write("sys/class/power_supply/BAT0/uevent",
                  "POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_STATUS=Full\n"
                  "POWER_SUPPLY_CAPACITY=100\n");
    // Energy inside a package is part of the package's.
    machine.write("sys/class/powercap/intel-rapl:0:0/name", "core\n");
    machine.write("sys/class/powercap/intel-rapl:0:0/energy_uj", "1000000\n");
    DeviceReader reader{machine.root() + "/sys"};
    auto power = reader.read(10).findings[MetricID::powerWatts];
    EXPECT_EQ(power.state, MetricState::warmingUp);
    machine.write("sys/class/powercap/intel-rapl:0/energy_uj", "31000000\n");
    machine.write("sys/class/powercap/intel-rapl:0:0/energy_uj", "21000000\n");
    auto findings = reader.read(15).findings;
    EXPECT_DOUBLE_EQ(findings[MetricID::powerWatts].value.value_or(-1), 6);
    EXPECT_EQ(findings[MetricID::batteryMinutes].state, MetricState::unsupported);
    EXPECT_EQ(findings[MetricID::battery].value, 100);
    machine.write("sys/class/powercap/intel-rapl:0/energy_uj", "5\n"); // the counter wrapped
    EXPECT_EQ(reader.read(20).findings[MetricID::powerWatts].state, MetricState::warmingUp);
}

TEST(CollectorOnALaptop, DoesNotWakeAGraphicsCard)
{
    Machine machine;
    makeLaptop(machine);
    machine.write("sys/class/drm/card0/device/power/runtime_status", "suspended\n");
    machine.write("sys/class/hwmon/hwmon7/name", "amdgpu\n");
    machine.write("sys/class/hwmon/hwmon7/device/power/runtime_status", "suspended\n");
    machine.write("sys/class/hwmon/hwmon7/fan1_input", "9000\n"); // to read it wakes the card
    auto findings = DeviceReader{machine.root() + "/sys"}.read(1).findings;
    EXPECT_EQ(findings[MetricID::gpu].value, 0);
    EXPECT_EQ(findings[MetricID::gpu].detail, "Powered down");
    EXPECT_NE(findings[MetricID::fanRPM].value, 9000);
}

TEST(CollectorOnALaptop, SaysWhatItMayNotRead)
{
    const OrdinaryUser user;
    Machine machine;
    makeLaptop(machine);
    machine.remove("sys/class/power_supply/BAT0"); // it would tell the power instead
    machine.forbid("sys/class/powercap/intel-rapl:0/energy_uj");
    DeviceReader reader{machine.root() + "/sys"};
    Finding power;
    user.does([&] { power = reader.read(10).findings[MetricID::powerWatts]; });
    EXPECT_EQ(power.state, MetricState::permissionRequired);
    EXPECT_FALSE(power.value);
}

TEST(CollectorOnAServer, CountsEachByteOnce)
{
    Machine machine;
    const auto disks = [&](std::uint64_t sectors) {
        std::string text;
        for (const char *name : {"sda", "sda1", "sdb", "sdb1", "dm-0", "md0", "loop0"}) {
            text += Machine::disk(name, sectors, 2 * sectors);
        }
        machine.write("proc/diskstats", text);
        text.clear();
        for (const char *name : {"lo", "eth0", "eth1", "bond0", "docker0"}) {
            text += Machine::interface(name, 100 * sectors, 10 * sectors);
        }
        machine.write("proc/net/dev", text);
    };
    for (const char *folder :
         {"sys/block/sda/device", "sys/block/sdb/device", "sys/block/dm-0/dm", "sys/block/md0",
          "sys/block/loop0", "sys/class/net/eth0/device", "sys/class/net/eth1/device",
          "sys/class/net/bond0", "sys/class/net/docker0"}) {
        machine.add(folder);
    }
    disks(1000);
    CollectorOn collector{machine};
    EXPECT_EQ(stateOf(collector.after(1).snapshot, MetricID::diskRead), "warmingUp");
    disks(2000);
    auto snapshot = collector.after(2).snapshot;
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::diskRead), 2 * 1000 * 512 / 2.0);
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::diskWrite), 2 * 2000 * 512 / 2.0);
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::download), 2 * 100 * 1000 / 2.0);
    EXPECT_DOUBLE_EQ(valueOf(snapshot, MetricID::upload), 2 * 10 * 1000 / 2.0);

    machine.remove("sys/class/net/eth1"); // unplugged, and its row with it
    machine.write("proc/net/dev", Machine::interface("eth0", 300'000, 20'000));
    EXPECT_DOUBLE_EQ(valueOf(collector.after(2).snapshot, MetricID::download), 50'000);
}

TEST(CollectorInAContainer, CountsTheInterfacesThatLeadOut)
{
    Machine machine;
    machine.add("sys/class/net/eth0");
    machine.add("sys/class/net/eth1");
    machine.write("proc/net/route", "Iface Destination\neth0 00000000 010011AC 0003 0 0 0 "
                                    "00000000 0 0 0\n");
    const std::string zero(32, '0');
    machine.write("proc/net/ipv6_route",
                  zero + " 00 " + zero + " 00 " + zero + " 00000400 1 0 00000003 eth1\n");
    const auto traffic = [&](std::uint64_t bytes) {
        machine.write("proc/net/dev", Machine::interface("lo", bytes, bytes) +
                                          Machine::interface("eth0", bytes, bytes) +
                                          Machine::interface("eth1", 10 * bytes, bytes));
    };
    traffic(1000);
    CollectorOn collector{machine};
    collector.after(1);
    traffic(5000);
    EXPECT_DOUBLE_EQ(valueOf(collector.after(2).snapshot, MetricID::download), 22'000);
}

TEST(CollectorWithoutAnything, ReportsEveryMetricWithoutAValue)
{
    Machine machine;
    const auto snapshot = CollectorOn{machine}.devicesAfter(1);
    EXPECT_EQ(snapshot.readings.size(), enumTexts(Base::Of<MetricID>{}).size());
    for (const auto &[metric, reading] : snapshot.readings) {
        const bool isDiskSpace = metric == MetricID::diskFree || metric == MetricID::diskTotal;
        EXPECT_EQ(reading.state == MetricState::unsupported, !isDiskSpace)
            << Base::textOf(metric);
        EXPECT_EQ(reading.value.has_value(), isDiskSpace) << Base::textOf(metric);
        EXPECT_EQ(reading.unit, unitOf(metric));
    }
}

TEST(CollectorWithoutSys, TellsDisksByTheirNames)
{
    Machine machine;
    machine.write("proc/diskstats", Machine::disk("sda", 0, 0) + Machine::disk("sda1", 0, 0));
    CollectorOn collector{machine};
    collector.after(1);
    machine.write("proc/diskstats", Machine::disk("sda", 4, 0) + Machine::disk("sda1", 4, 0));
    EXPECT_DOUBLE_EQ(valueOf(collector.after(2).snapshot, MetricID::diskRead), 1024);
}

} // namespace
