// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorLinux/ProcParsers.h"

#include "MonitorLinux/PowerSupplies.h"

#include <gmock/gmock.h>

using namespace MonitorLinux;
using testing::ElementsAre;

namespace
{

constexpr const char *kAfterName = " S 12 40 41 0 -1 4194304 100 1 3 1 70 30 0 0 20 0 1 0 "
                                   "987654 9000 250 18446744073709551615 1 1";

TEST(ParseProcessStat, FindsTheFieldsBehindAnyName)
{
    for (const std::string name : {"cat", "a b", ") S 1 (", "((", "new\nline", "", "\xFF)"}) {
        SCOPED_TRACE(name);
        const std::string text = "412 (" + name + ")" + kAfterName;
        EXPECT_EQ(parseProcessStat(text), (ProcessStat{.pid = 412,
                                                       .name = name,
                                                       .parent = 12,
                                                       .session = 41,
                                                       .faults = 103,
                                                       .cpuTicks = 100,
                                                       .start = 987654,
                                                       .residentPages = 250}));
    }
}

TEST(ParseProcessStat, KnowsAKernelThreadAndRefusesDamage)
{
    const auto thread = parseProcessStat("2 (kthreadd) S 0 0 0 0 -1 2129984 0 0 0 0 0 1 0 0 20 "
                                         "0 1 0 3 0 0 18446744073709551615");
    ASSERT_TRUE(thread);
    EXPECT_TRUE(thread->isKernelThread);
    for (const std::string text : {"", "412", "412 (cat", "412 cat) S", "x (cat) S 1 2 3",
                                   "412 (cat) S 12 40", ")412 (", "99999999999 (cat) S 1"}) {
        EXPECT_FALSE(parseProcessStat(text)) << text;
    }
}

TEST(ParsePrivatePages, NeverGoesBelowNothing)
{
    EXPECT_EQ(parsePrivatePages("900 300 100 1 0 50 0\n"), 200U);
    EXPECT_EQ(parsePrivatePages("900 100 120 1 0 50 0\n"), 0U);
    EXPECT_FALSE(parsePrivatePages("900 300"));
}

TEST(ParseCgroup, TakesThePathThatTellsMost)
{
    struct Case {
        const char *name;
        const char *text;
        const char *path;
    };
    for (const auto &[name, text, path] : {
             Case{"unified", "0::/user.slice/a:b.scope\n", "/user.slice/a:b.scope"},
             Case{"hybrid", "4:memory:/m\n1:name=systemd:/sys\n0::/uni\n", "/uni"},
             Case{"hybrid, unused", "4:memory:/m\n1:name=systemd:/sys\n0::/\n", "/sys"},
             Case{"old container", "3:cpu,cpuacct:/docker/1\n2:pids:/docker/1\n", "/docker/1"},
             Case{"root only", "2:cpu:/\n0::/\n", ""},
             Case{"damaged", "nonsense\n3:\n:", ""},
         }) {
        EXPECT_EQ(parseCgroup(text), path) << name;
    }
}

TEST(ParseMemory, ReadsWhatOldAndNewKernelsSay)
{
    const auto now = parseMemory("MemTotal: 1000 kB\nMemFree: 100 kB\nMemAvailable: 600 kB\n"
                                 "Unevictable: 10 kB\nKernelStack: 2 kB\nPageTables: 3 kB\n"
                                 "SUnreclaim: 5 kB\nZswap: 7 kB\n");
    EXPECT_EQ(
        now, (MemoryUse{.total = 1'024'000, .used = 409'600, .wired = 20'480, .zswap = 7'168}));
    const auto old = parseMemory("MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 50 kB\n"
                                 "Cached: 250 kB\n");
    EXPECT_EQ(old, (MemoryUse{.total = 1'024'000, .used = 614'400}));
    EXPECT_FALSE(parseMemory("MemFree: 100 kB\n"));
    EXPECT_FALSE(parseMemory("MemTotal: much\nMemFree: 100 kB\n"));
}

TEST(ParsePressure, ReadsTheShortestAverage)
{
    EXPECT_EQ(parsePressure("some avg10=3.25 avg60=1 avg300=0 total=9\nfull avg10=1"), 3.25);
    for (const char *text : {"", "full avg10=1.0", "some avg60=1.0", "some avg10=nan"}) {
        EXPECT_FALSE(parsePressure(text)) << text;
    }
}

TEST(ParseNetDev, ReadsRowsWhoseNumbersTouchTheName)
{
    std::vector<Traffic> rows{{.name = "old"}};
    parseNetDev("Inter-|   Receive  |  Transmit\n face |bytes packets|bytes\n"
                "  eth0:18446744073709551615 1 0 0 0 0 0 0 77 2 0 0\n  bad: 1 2\n",
                rows);
    EXPECT_THAT(rows, ElementsAre(Traffic{"eth0", 18'446'744'073'709'551'615U, 77}));
}

TEST(IsWholeDiskName, RefusesPartitionsAndLayers)
{
    for (const char *name : {"sda", "sdaa", "vdb", "xvda", "nvme0n1", "nvme10n2", "mmcblk0"}) {
        EXPECT_TRUE(isWholeDiskName(name)) << name;
    }
    for (const char *name : {"sda1", "sd", "nvme0n1p2", "mmcblk0p1", "dm-0", "md127", "loop3",
                             "zram0", "sr0", ""}) {
        EXPECT_FALSE(isWholeDiskName(name)) << name;
    }
}

TEST(ParseDefaultRoutes, TakesTheRowsThatLeadAnywhere)
{
    EXPECT_THAT(parseDefaultRoutes("Iface Destination Gateway Flags RefCnt Use Metric Mask\n"
                                   "eth0 00000000 010011AC 0003 0 0 0 00000000 0 0 0\n"
                                   "eth1 000011AC 00000000 0001 0 0 0 0000FFFF 0 0 0\n"
                                   "tun0 00000000 00000000 0001 0 0 0 00000080 0 0 0\n"),
                ElementsAre("eth0"));
    const std::string zero(32, '0');
    const std::string through = " fe800000000000000000000000000001 00000400 1 0 ";
    EXPECT_THAT(parseDefaultRoutes6(zero + " 00 " + zero + " 00" + through +
                                    "00000003     eth0\n" + zero + " 60 " + zero + " 00" +
                                    through + "00000001     eth1\n" + zero + " 00 " + zero +
                                    " 00 " + zero + " ffffffff 1 0 00200200       lo\n" + zero +
                                    " 00\n"),
                ElementsAre("eth0"));
}

TEST(ParseListeningPorts, TakesOnlyWhatListensAndIsTheProcesss)
{
    const std::string any6(32, '0');
    const std::string rest = " 00000000:00000000 00:00000000 00000000 0 0 ";
    const std::string table = "  sl  local_address rem_address st\n"
                              "  0: 0100007F:1F90 00000000:0000 0A" +
                              rest +
                              "100 1\n" // listens
                              "  1: 0100007F:1F91 0100007F:0016 01" +
                              rest +
                              "101 1\n" // is connected
                              "  2: 0100007F:1F92 00000000:0000 0A" +
                              rest +
                              "999 1\n" // is another's
                              "  3: " +
                              any6 + ":0050 " + any6 + ":0000 0A" + rest +
                              "102 1\n"
                              "  4: 00000000:0035 00000000:0000 07" +
                              rest +
                              "103 1\n"
                              "  5: 00000000:0036 00000000:0035 07" +
                              rest + "103 1\n"; // has a peer
    const std::vector<std::uint64_t> inodes{100, 101, 102, 103};
    std::vector<std::uint16_t> tcp;
    parseListeningPorts(table, SocketTable::tcp, inodes, tcp);
    EXPECT_THAT(tcp, ElementsAre(8080, 80));
    std::vector<std::uint16_t> udp;
    parseListeningPorts(table, SocketTable::udp, inodes, udp);
    EXPECT_THAT(udp, ElementsAre(53));
}

TEST(AsUtf8, ReplacesWhatIsNoText)
{
    const auto marks = [](int count) {
        std::string text;
        for (int at = 0; at < count; ++at) {
            text += "\xEF\xBF\xBD";
        }
        return text;
    };
    for (const auto &[bytes, text] : std::vector<std::pair<std::string, std::string>>{
             {"plain\n", "plain\n"},
             {"\xD8\xB0\xD9\x83\xD8\xB1", "\xD8\xB0\xD9\x83\xD8\xB1"},
             {"\xF0\x9F\x8C\x99", "\xF0\x9F\x8C\x99"},
             {"cut \xD8", "cut \xEF\xBF\xBD"},
             {"\xE2\x82", marks(2)},
             {"\xC0\xAF", marks(2)},         // too long a form of a slash
             {"\xED\xA0\x80", marks(3)},     // half of a pair
             {"\xF4\x90\x80\x80", marks(4)}, // beyond the last character
         }) {
        EXPECT_EQ(asUtf8(bytes), text);
    }
}

TEST(ParsePowerSupply, CountsEnergyAndChargeAlike)
{
    const auto charge = parsePowerSupply("POWER_SUPPLY_TYPE=Battery\n"
                                         "POWER_SUPPLY_STATUS=Discharging\n"
                                         "POWER_SUPPLY_VOLTAGE_NOW=10000000\n"
                                         "POWER_SUPPLY_CURRENT_NOW=-2000000\n"
                                         "POWER_SUPPLY_CHARGE_NOW=3000000\n"
                                         "POWER_SUPPLY_CHARGE_FULL=4000000\n");
    EXPECT_TRUE(charge.isBattery && charge.isDischarging);
    EXPECT_DOUBLE_EQ(charge.now.value(), 30);
    EXPECT_DOUBLE_EQ(charge.full.value(), 40);
    EXPECT_DOUBLE_EQ(charge.watts.value(), 20);
    EXPECT_FALSE(charge.design);
    EXPECT_FALSE(
        parsePowerSupply("POWER_SUPPLY_TYPE=Battery\nPOWER_SUPPLY_PRESENT=0").isBattery);
    EXPECT_FALSE(parsePowerSupply("POWER_SUPPLY_TYPE=Mains\n").isBattery);
}

} // namespace
