// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorAlertRules.h"

#include "tests/MonitorCore/Snapshots.h"

#include <gmock/gmock.h>

using namespace MonitorCore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double kGiB = 1'073'741'824;

std::vector<std::string> idsOf(const std::vector<MonitorAlert> &alerts)
{
    std::vector<std::string> ids;
    for (const MonitorAlert &alert : alerts) {
        ids.push_back(alert.id);
    }
    return ids;
}

// Feeds one application, "a", at any pace.
struct Watch {
    MonitorPreferences preferences{.alertsEnabled = true};
    MonitorAlertRules rules{};

    std::vector<std::string> feed(double time, AppUsage app)
    {
        app.id = "a";
        app.name = "App";
        auto snapshot = snapshotAt(time, 10, {});
        snapshot.apps = {std::move(app)};
        return idsOf(rules.evaluate(snapshot, preferences));
    }

    // The times at which alerts came, fed every 60 seconds from `from` to `to`.
    std::vector<double> times(double from, double to, const AppUsage &app)
    {
        std::vector<double> raised;
        for (double time = from; time <= to; time += 60) {
            if (!feed(time, app).empty()) {
                raised.push_back(time);
            }
        }
        return raised;
    }
};

TEST(MonitorAlertRules, RaiseALoadOnceItHasLastedAndAgainAfterHalfAnHour)
{
    struct Case {
        const char *name;
        AppUsage app;
        std::vector<double> raised;
    };
    for (const auto &[name, app, raised] : {
             Case{"above the CPU threshold", {.cpu = 80.1}, {600, 2'400}},
             Case{"at it", {.cpu = 80}, {}},
             Case{"at the disk threshold", {.diskRead = 400, .diskWrite = 600}, {300, 2'100}},
             Case{"below it", {.diskRead = 999}, {}},
             Case{"at the network threshold", {.download = 1'500, .upload = 500}, {300, 2'100}},
             Case{"below it", {.upload = 1'999}, {}},
         }) {
        Watch watch;
        watch.preferences.diskThreshold = 1'000;
        watch.preferences.networkThreshold = 2'000;
        EXPECT_EQ(watch.times(0, 3'600, app), raised) << name;
    }
    Watch off; // 0 turns the two off
    EXPECT_THAT(off.times(0, 3'600, {.diskRead = 1e12, .download = 1e12}), IsEmpty());
}

TEST(MonitorAlertRules, SayWhatHappenedAndWhere)
{
    MonitorAlertRules rules;
    const MonitorPreferences preferences{
        .alertsEnabled = true, .cpuThreshold = 85.9, .cpuDuration = 60};
    auto snapshot = snapshotAt(0, 10, {});
    snapshot.apps = {{.id = "a", .name = "App", .cpu = 90}, {.id = "b", .cpu = 90}};
    EXPECT_THAT(rules.evaluate(snapshot, preferences), IsEmpty());
    snapshot.timestamp = Base::fromSeconds1970(60);
    snapshot.apps[1].cpu = 1;
    EXPECT_THAT(rules.evaluate(snapshot, preferences),
                ElementsAre(MonitorAlert{.id = "a|cpu",
                                         .appID = "a",
                                         .title = "App: high CPU load",
                                         .detail = "CPU stayed above 85% of one core."}));
}

TEST(MonitorAlertRules, StartOverAfterAnyBreak)
{
    const AppUsage busy{.cpu = 95};
    struct Case {
        const char *name;
        void (*interrupt)(Watch &);
        double raised;
    };
    for (const auto &[name, interrupt, raised] : {
             Case{"none", [](Watch &w) { w.feed(560, {.cpu = 95}); }, 600},
             Case{"calm for a sample", [](Watch &w) { w.feed(560, {.cpu = 2}); }, 1'200},
             Case{"application gone",
                  [](Watch &w) { w.rules.evaluate(snapshotAt(560, 10, {}), w.preferences); },
                  1'200},
             Case{"excluded",
                  [](Watch &w) {
                      w.preferences.excludedApps = {"a"};
                      w.feed(560, {.cpu = 95});
                      w.preferences.excludedApps = {};
                  },
                  1'200},
             Case{"turned off",
                  [](Watch &w) {
                      w.preferences.alertsEnabled = false;
                      w.feed(560, {.cpu = 95});
                      w.preferences.alertsEnabled = true;
                  },
                  1'200},
             Case{"clock stepped back", [](Watch &w) { w.feed(530, {.cpu = 95}); }, 1'140},
         }) {
        Watch watch;
        EXPECT_THAT(watch.times(0, 540, busy), IsEmpty());
        interrupt(watch);
        EXPECT_THAT(watch.times(600, 1'200, busy), ElementsAre(raised)) << name;
    }
    for (const auto &[gap, isKept] : {std::pair{90.0, true}, std::pair{90.001, false}}) {
        Watch watch;
        EXPECT_THAT(watch.times(0, 540, busy), IsEmpty());
        EXPECT_EQ(!watch.feed(540 + gap, busy).empty(), isKept) << gap;
    }
}

TEST(MonitorAlertRules, RaiseMemoryThatGrewOverTheHour)
{
    struct Case {
        const char *name;
        double before;
        double after;
        double at;
        bool isRaised;
    };
    for (const auto &[name, before, after, at, isRaised] : {
             Case{"doubled", kGiB, 2 * kGiB, 3'600, true},
             Case{"too soon", kGiB, 2 * kGiB, 3'599, false},
             Case{"grew a byte too little", kGiB, 2 * kGiB - 1, 3'600, false},
             Case{"not by half", 3 * kGiB, 4.4 * kGiB, 3'600, false},
             Case{"by half", 4 * kGiB, 6 * kGiB, 3'600, true},
             Case{"from nothing", 0, kGiB, 3'600, true},
         }) {
        Watch watch;
        for (double time = 0; time < 3'570; time += 60) {
            EXPECT_THAT(watch.feed(time, {.memory = before}), IsEmpty());
        }
        EXPECT_EQ(watch.feed(at, {.memory = after}),
                  isRaised ? std::vector<std::string>{"a|memory"} : std::vector<std::string>{})
            << name;
    }
}

TEST(MonitorAlertRules, RenewTheMemoryBaseline)
{
    Watch watch;
    const auto baseline = [&] { return watch.rules.memory.at("a"); };
    watch.feed(0, {.memory = 2 * kGiB});
    watch.feed(60, {.memory = kGiB}); // fell below it
    EXPECT_EQ(baseline(), (MonitorAlertRules::Baseline{kGiB, Base::fromSeconds1970(60)}));
    watch.times(120, 3'660, {.memory = 1.5 * kGiB});
    EXPECT_EQ(baseline().footprint, kGiB);
    EXPECT_THAT(watch.feed(3'720, {.memory = 1.6 * kGiB}), IsEmpty()); // 3,660 s old: judged
    EXPECT_EQ(baseline().footprint, kGiB);
    EXPECT_THAT(watch.feed(3'721, {.memory = 1.6 * kGiB}), IsEmpty()); // and then too old
    EXPECT_EQ(baseline().footprint, 1.6 * kGiB);
    watch.times(3'780, 7'300, {.memory = 1.6 * kGiB});
    EXPECT_THAT(watch.feed(7'330, {.memory = 4 * kGiB}), ElementsAre("a|memory"));
    EXPECT_EQ(baseline(),
              (MonitorAlertRules::Baseline{4 * kGiB, Base::fromSeconds1970(7'330)}));
    watch.feed(7'500, {.memory = 4 * kGiB}); // after a gap
    EXPECT_EQ(baseline().date, Base::fromSeconds1970(7'500));
}

} // namespace
