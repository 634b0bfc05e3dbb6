// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/ProjectActivityTracker.h"

#include <gmock/gmock.h>

#include <set>

using namespace MonitorCore;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace
{

ProcessSample processIn(std::int32_t pid, std::int32_t parent,
                        std::optional<std::string> directory)
{
    return {.key = {pid, static_cast<std::uint64_t>(pid)},
            .parentPID = parent,
            .directory = std::move(directory)};
}

std::vector<std::int32_t> pidsOf(const std::vector<ProcessKey> &keys)
{
    std::vector<std::int32_t> pids;
    for (const ProcessKey &key : keys) {
        pids.push_back(key.pid);
    }
    return pids;
}

TEST(ProjectGrouper, GroupsByTheNearestRepository)
{
    const std::set<std::string> repositories{
        "/", "/home", "/home/ada", "/home/ada/p", "/home/ada/p/inner", "/srv/q"};
    std::map<std::string, int> asked;
    const ProjectGrouper grouper{"/home/ada/", [&](const std::string &folder) {
                                     ++asked[folder];
                                     return repositories.contains(folder);
                                 }};
    const auto projects = grouper.group({
        processIn(1, 0, "/"), processIn(10, 1, "/home/ada"), // a shell
        processIn(11, 10, "/home/ada/p"), processIn(12, 11, "/home/ada/p/src/deep"),
        processIn(13, 12, "/tmp"), processIn(14, 13, "/home/ada/p"), // from elsewhere again
        processIn(15, 11, "/home/ada/p/inner/src"), processIn(16, 1, "/srv/q"),
        processIn(17, 1, "/home/ada/plain"), processIn(18, 1, "/home"),
        processIn(19, 1, std::nullopt), processIn(20, 1, "gone (deleted)"),
        processIn(21, 1, ""), processIn(22, 20, "/home/ada/p2"), // begins like a project
    });
    ASSERT_EQ(projects.size(), 3U);
    EXPECT_EQ(projects[0].id, "/home/ada/p");
    EXPECT_EQ(projects[0].folder, "/home/ada/p");
    EXPECT_EQ(projects[0].processes.size(), 3U);
    EXPECT_THAT(pidsOf(projects[0].roots), ElementsAre(11, 14));
    EXPECT_EQ(projects[1].folder, "/home/ada/p/inner");
    EXPECT_THAT(pidsOf(projects[1].roots), ElementsAre(15));
    EXPECT_EQ(projects[2].folder, "/srv/q");
    for (const auto &[folder, times] : asked) {
        EXPECT_EQ(times, 1) << folder;
    }
    EXPECT_FALSE(asked.contains("/home/ada"));
    EXPECT_THAT(ProjectGrouper("", [](const std::string &) { return true; }).group({}),
                IsEmpty());
}

MonitorProject projectWith(std::string id, double cpu, double traffic)
{
    return {.id = std::move(id),
            .processes = {{.cpu = cpu / 2, .diskRead = traffic},
                          {.cpu = cpu / 2, .diskWrite = traffic, .upload = traffic}}};
}

TEST(ProjectActivityTracker, CountsSecondsOfLowActivity)
{
    struct Step {
        const char *name;
        double time;
        double cpu;
        double traffic;
        double seconds;
    };
    ProjectActivityTracker tracker;
    for (const auto &[name, time, cpu, traffic, seconds] : {
             Step{"the first sample covers no time", 1'000, 0, 0, 0},
             Step{"quiet", 1'010, 1.9, 6'000, 10},
             Step{"at the same moment", 1'010, 0, 0, 10},
             Step{"quiet for the longest gap", 1'100, 0, 0, 100},
             Step{"busy", 1'110, 2, 0, 0},
             Step{"quiet again", 1'120, 0, 0, 10},
             Step{"moves bytes", 1'130, 0, 7'000, 0},
             Step{"quiet again", 1'140, 0, 0, 10},
             Step{"a longer gap", 1'230.001, 0, 0, 0},
             Step{"quiet again", 1'240, 0, 0, 9.999},
             Step{"the clock steps back", 1'200, 0, 0, 0},
             Step{"quiet again", 1'201, 0, 0, 1},
         }) {
        tracker.update({projectWith("a", cpu, traffic)}, Base::fromSeconds1970(time));
        EXPECT_NEAR(tracker.lowActivitySeconds.at("a"), seconds, 1e-6) << name;
    }
    tracker.update({projectWith("b", 0, 0)}, Base::fromSeconds1970(1'210));
    tracker.update({projectWith("a", 0, 0), projectWith("b", 0, 0)},
                   Base::fromSeconds1970(1'220));
    EXPECT_THAT(tracker.lowActivitySeconds, ElementsAre(Pair("a", 0), Pair("b", 10)));
}

} // namespace
