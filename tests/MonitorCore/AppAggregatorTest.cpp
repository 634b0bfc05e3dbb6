// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/AppAggregator.h"

#include "MonitorCore/ControlGroup.h"

#include <gmock/gmock.h>

#include <random>
#include <set>

using namespace MonitorCore;
using testing::ElementsAre;
using testing::Pair;

namespace
{

constexpr auto kApplication = ControlGroupOwner::Kind::application;
constexpr auto kService = ControlGroupOwner::Kind::service;
const std::string kUser = "/user.slice/user-1000.slice/user@1000.service";

TEST(ControlGroup, NamesItsOwner)
{
    struct Case {
        std::string path;
        ControlGroupOwner owner;
    };
    for (const auto &[path, owner] : {
             Case{kUser + "/app.slice/app-gnome-org.example.Mail-412.scope",
                  {kApplication, "org.example.Mail"}},
             Case{kUser + R"(/app.slice/app-gnome-big\x2dbrowser-5112.scope)",
                  {kApplication, "big-browser"}},
             Case{kUser + "/app.slice/app-browser-abcdef.scope", {kApplication, "browser"}},
             Case{kUser + "/app.slice/app-single.scope", {kApplication, "single"}},
             Case{kUser + "/app.slice/app-flatpak-org.example.Draw-77.scope",
                  {kApplication, "org.example.Draw"}},
             Case{kUser + R"(/app.slice/app-tray\x2dicon@autostart.service)",
                  {kApplication, "tray-icon"}},
             Case{kUser + "/app.slice/app-kde-org.example.Notes.service",
                  {kApplication, "org.example.Notes"}},
             Case{kUser + "/app.slice/app-org.example.Terminal.slice/tab-0b2c.scope",
                  {kApplication, "org.example.Terminal"}},
             Case{kUser + "/app.slice/app-gnome-org.example.Mail-3f.slice/x.service",
                  {kApplication, "org.example.Mail"}},
             Case{kUser + R"(/app.slice/app-dbus\x2d:1.2\x2dorg.example.Files.slice)"
                          "/dbus-:1.2-org.example.Files@0.service",
                  {kApplication, "org.example.Files"}},
             Case{kUser + "/app.slice/dbus-:1.23-org.example.Files@1.service",
                  {kApplication, "org.example.Files"}},
             Case{kUser +
                      "/app.slice/snap.paint.tool-0f6a54c2-7a3e-4d8f-9a10-55f1c2e09b11.scope",
                  {kApplication, "paint_tool"}},
             Case{kUser + "/app.slice/sound.service", {kService, "sound.service"}},
             Case{"/system.slice/web.service/payload", {kService, "web.service"}},
             Case{"/system.slice/box.service/app-inner-1.scope", {kService, "box.service"}},
             Case{"/system.slice/system-getty.slice/getty@tty1.service",
                  {kService, "getty.service"}},
             Case{kUser + "/app.slice/app-graphical.slice/unit.service",
                  {kService, "unit.service"}},
             // Shared by programs that have nothing to do with each other.
             Case{kUser + "/app.slice/dbus.service", {}},
             Case{kUser + "/init.scope", {}},
             Case{kUser + "/app.slice/run-r12ab.scope", {}},
             Case{"/user.slice/user-1000.slice/session-2.scope", {}},
             // Odd ones.
             Case{"/", {}},
             Case{"", {}},
             Case{"/app.slice/app-.scope", {}},
             Case{"/x/.service", {}},
             Case{"/x/snap..scope", {}},
             Case{R"(/x/app-a\x2-1.scope)", {kApplication, R"(a\x2)"}},
             Case{R"(/x/app-a\xzz-1.scope)", {kApplication, R"(a\xzz)"}},
         }) {
        const auto found = ownerOf(path);
        EXPECT_EQ(found.kind, owner.kind) << path;
        EXPECT_EQ(found.id, owner.id) << path;
    }
}

// A machine of processes that are started one after the other.
struct Machine {
    std::vector<ProcessSample> processes{};
    std::vector<ProcessOrigin> origins{};

    std::int32_t start(std::int32_t parent, std::string executable, std::string group = {})
    {
        const auto pid = static_cast<std::int32_t>(processes.size() + 1);
        std::string name = executable.substr(executable.rfind('/') + 1);
        processes.push_back({.key = {pid, static_cast<std::uint64_t>(pid)},
                             .parentPID = parent,
                             .name = std::move(name),
                             .executable = std::move(executable),
                             .cpu = 1});
        origins.push_back({.cgroup = std::move(group)});
        return pid;
    }

    // For each application its key, its name and its processes' names.
    std::map<std::string, std::string>
    grouped(const std::vector<InstalledApp> &installed = {}) const
    {
        std::map<std::string, std::string> lines;
        for (const AppUsage &app : AppAggregator{installed}.aggregate(processes, origins)) {
            std::string line = app.name + ":";
            for (const ProcessSample &process : app.processes) {
                line += " " + process.name;
                EXPECT_EQ(process.bundleID, app.bundleID);
            }
            EXPECT_EQ(app.cpu, static_cast<double>(app.processes.size()));
            EXPECT_EQ(app.bundleID.value_or(app.id), app.id);
            lines[app.id] = std::move(line);
        }
        return lines;
    }
};

TEST(AppAggregator, GroupsADesktopOfUnits)
{
    Machine machine;
    const auto first = machine.start(0, "/usr/lib/systemd/systemd", "/init.scope");
    const auto kernel = machine.start(0, "");
    machine.origins.back().isKernelThread = true;
    machine.start(kernel, "");
    machine.origins.back().isKernelThread = true;
    const auto mail =
        machine.start(first, "/usr/bin/mail", kUser + "/app-org.example.Mail-1.scope");
    machine.start(mail, "/usr/bin/spell", kUser + "/app-org.example.Mail-1.scope");
    machine.start(first, "/usr/bin/webd", "/system.slice/web@1.service");
    machine.start(first, "/usr/bin/webd", "/system.slice/web@2.service");
    machine.start(first, "/usr/bin/odd", kUser + "/app-tool\\x2d2.1-1.scope");
    EXPECT_THAT(machine.grouped({{.id = "org.example.Mail", .name = "Letters"}}),
                ElementsAre(Pair("/usr/lib/systemd/systemd", "systemd: systemd"),
                            Pair("[kernel]", "Kernel:  "),
                            Pair("org.example.Mail", "Letters: mail spell"),
                            Pair("tool-2.1", "tool-2.1: odd"),
                            Pair("web.service", "web: webd webd")));
    EXPECT_EQ(machine.grouped().at("org.example.Mail"), "Mail: mail spell");
}

// Where a login session holds everything, desktop files and parents tell.
TEST(AppAggregator, GroupsASessionWithoutUnits)
{
    const std::string session = "/user.slice/user-1000.slice/session-2.scope";
    Machine machine;
    const auto daemon = machine.start(0, "/usr/sbin/logind", "/system.slice/login.service");
    const auto desk = machine.start(daemon, "/usr/bin/desk", session);
    const auto terminal = machine.start(desk, "/usr/bin/terminal", session);
    const auto shell = machine.start(terminal, "/bin/bash", session);
    const auto make = machine.start(shell, "/usr/bin/make", session);
    machine.start(make, "/usr/bin/paint", session); // an application of its own
    const auto remote = machine.start(daemon, "/bin/bash", session);
    machine.start(remote, "/usr/bin/make", session);
    machine.start(desk, "/usr/bin/office", session);
    machine.start(99, "", session);
    machine.processes.back().name = "hidden";
    machine.start(99, "", session);
    const std::vector<InstalledApp> installed{
        {.id = "terminal", .name = "Terminal", .executable = "/usr/bin/terminal"},
        {.id = "org.example.Paint", .executable = "/usr/bin/paint"},
        {.id = "writer", .executable = "/usr/bin/office"},
        {.id = "sheets", .executable = "/usr/bin/office"},
        {.id = "broken"},
    };
    EXPECT_THAT(
        machine.grouped(installed),
        ElementsAre(Pair("/bin/bash", "bash: bash"), Pair("/usr/bin/desk", "desk: desk"),
                    Pair("/usr/bin/make", "make: make"),
                    Pair("/usr/bin/office", "office: office"), Pair("[unnamed]", "[unnamed]: "),
                    Pair("hidden", "hidden: hidden"), Pair("login.service", "login: logind"),
                    Pair("org.example.Paint", "Paint: paint"),
                    Pair("terminal", "Terminal: terminal bash make")));
    // A number that a younger process was given makes no parent.
    machine.processes[static_cast<std::size_t>(terminal) - 1].key.start = 1'000;
    EXPECT_EQ(machine.grouped(installed).at("terminal"), "Terminal: terminal");
    // What the platform knows of a process goes before all else.
    machine.processes[static_cast<std::size_t>(make) - 1].bundleID = "org.example.Paint";
    EXPECT_EQ(machine.grouped(installed).at("org.example.Paint"), "Paint: make paint");
}

// However odd the chains of parents, each process ends in one application.
TEST(AppAggregator, LosesNothing)
{
    std::mt19937 random{7};
    const auto below = [&](std::size_t limit) { return random() % limit; };
    const AppAggregator aggregator{{{.id = "a", .executable = "/a"}}};
    for (int round = 0; round < 200; ++round) {
        std::vector<ProcessSample> processes;
        std::vector<ProcessOrigin> origins;
        double total = 0;
        for (int n = 0; n < 30; ++n) { // rings, strangers and equal starts
            processes.push_back(
                {.key = {n, below(3)},
                 .parentPID = static_cast<std::int32_t>(below(40)),
                 .executable = "/" + std::string(1, static_cast<char>('a' + below(6))),
                 .memory = static_cast<double>(below(1'000))});
            total += processes.back().memory;
            if (below(8) > 0) {
                origins.push_back({.cgroup = below(4) == 0 ? "/x/app-b-1.scope" : ""});
            }
        }
        std::set<std::string> ids;
        std::set<ProcessKey> seen;
        for (const AppUsage &app : aggregator.aggregate(processes, origins)) {
            EXPECT_TRUE(ids.insert(app.id).second);
            double sum = 0;
            for (const ProcessSample &process : app.processes) {
                EXPECT_TRUE(seen.insert(process.key).second);
                sum += process.memory;
            }
            EXPECT_EQ(app.memory, sum);
            total -= sum;
        }
        EXPECT_EQ(seen.size(), processes.size());
        EXPECT_EQ(total, 0);
    }
}

} // namespace
