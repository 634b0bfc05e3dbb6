// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/HistoryItems.h"

#include "tests/MonitorCore/Snapshots.h"

#include <gmock/gmock.h>

#include <limits>

using namespace MonitorCore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::vector<std::string> appsOf(const std::vector<HistoryItem> &items, MetricID metric)
{
    std::vector<std::string> apps;
    for (const HistoryItem &item : items) {
        if (item.metric == metric && item.app != kSystemKey) {
            apps.emplace_back(item.app);
        }
    }
    return apps;
}

TEST(SpikeDetector, TellsCrossingsAndNewPeaks)
{
    struct Step {
        const char *name;
        double time;
        double cpu;
        bool isSpike;
    };
    SpikeDetector detector;
    for (const auto &[name, time, cpu, isSpike] : {
             Step{"the first value is no jump", 0, 30, false},
             Step{"a little higher", 10, 32, false},
             Step{"a tenth above the peak", 20, 34, true},
             Step{"as high again", 30, 34, false},
             Step{"back", 40, 10, false},
             Step{"up to the level", 50, 80, true},
             Step{"stays up", 60, 82, false},
             Step{"below and up again", 70, 79, false},
             Step{"crosses again", 80, 80, true},
             Step{"the peak is still known", 3'600, 60, false},
             Step{"an hour later only what was before counts", 3'700, 65, false},
             Step{"and a new peak from there", 3'710, 72, true},
             Step{"the clock steps back", 100, 40, false},
             Step{"a jump after a long sleep", 9'000, 70, true},
         }) {
        EXPECT_EQ(detector.update(snapshotAt(time, 10, {{MetricID::cpu, cpu}})).size(), isSpike)
            << name;
    }
    SpikeDetector quiet;
    quiet.update(snapshotAt(0, 10, {{MetricID::cpu, 1}}));
    EXPECT_THAT(quiet.update(snapshotAt(10, 10, {{MetricID::cpu, 19}})), IsEmpty());
}

TEST(HistoryItems, KeepBusyApplicationsAndTheFiveBehindAJump)
{
    auto snapshot = snapshotAt(100, 10, {{MetricID::cpu, 9}});
    for (int n = 0; n < 8; ++n) {
        snapshot.apps.push_back({.id = std::string(1, static_cast<char>('a' + n)),
                                 .cpu = n == 7 ? 30 : n * 0.1,
                                 .download = n == 3 ? 50'000.0 : 0});
    }
    snapshot.apps.push_back({.id = "", .cpu = 99});
    snapshot.apps.push_back({.id = "odd", .cpu = std::numeric_limits<double>::quiet_NaN()});
    const auto calm = historyItems(snapshot, {}, {});
    EXPECT_THAT(appsOf(calm, MetricID::cpu), ElementsAre("h"));
    EXPECT_THAT(appsOf(calm, MetricID::download), ElementsAre("d"));
    const auto jump = historyItems(snapshot, {MetricID::cpu, MetricID::download}, {});
    EXPECT_THAT(appsOf(jump, MetricID::cpu), ElementsAre("d", "e", "f", "g", "h"));
    EXPECT_THAT(appsOf(jump, MetricID::download), ElementsAre("d")); // zeros cause nothing
}

TEST(HistoryItems, LeaveOutWhatHasNoNumberAndWhatIsStored)
{
    auto snapshot =
        snapshotAt(100, 10, {{MetricID::cpu, 9}, {MetricID::gpu, 8}, {MetricID::fanRPM, 7}});
    snapshot.readings[MetricID::battery] = {.value = 50, .state = MetricState::stale};
    snapshot.readings[MetricID::upload] = {.state = MetricState::available};
    snapshot.readings[MetricID::fanRPM].timestamp = Base::fromSeconds1970(95);
    snapshot.advancedTimestamp = Base::fromSeconds1970(95);
    snapshot.advancedInterval = 5;
    const auto items = historyItems(snapshot, {}, {});
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].end, 100);
    EXPECT_EQ(items[2].end, 95);
    EXPECT_EQ(items[2].duration, 5);
    EXPECT_EQ(historyItems(snapshot, {}, snapshot.advancedTimestamp).size(), 2U);
}

} // namespace
