// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"
#include "tests/MonitorCore/Snapshots.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

using namespace MonitorCore;
using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr double kDay = 86'400;
constexpr double kStart = 1'700'000'000 - 1'700'000'000 % 86'400; // a midnight

Base::Instant at(double seconds) { return Base::fromSeconds1970(seconds); }

class MonitorHistory : public testing::Test
{
protected:
    const TemporaryFolder folder;
    const std::filesystem::path file = folder.path() / "history.sqlite";
    MonitorHistoryStore store = MonitorHistoryStore::open(file).value();

    void record(double end, double seconds, double cpu)
    {
        EXPECT_TRUE(store.record(snapshotAt(end, seconds, {{MetricID::cpu, cpu}})));
    }
    std::vector<HistoryPoint> points()
    {
        return store.history(kSystemKey, MetricID::cpu, at(0), at(1e10)).value();
    }
    std::vector<std::string> rows()
    {
        return RawFile::query(file, "SELECT t||' '||res||' '||app||' '||metric||' '||total||' '"
                                    "||weight||' '||peak FROM samples ORDER BY t,app");
    }
    std::string count() { return RawFile::query(file, "SELECT COUNT(*) FROM samples").front(); }
};

TEST_F(MonitorHistory, SharesASampleOutAmongItsMinutes)
{
    record(kStart + 90, 60, 50);
    record(kStart + 119, 1, 80);
    EXPECT_THAT(rows(), ElementsAre("1699920000 60  cpu 1500.0 30.0 50.0",
                                    "1699920060 60  cpu 1580.0 31.0 80.0"));
    EXPECT_THAT(points(), ElementsAre(HistoryPoint{at(kStart), 50, 50, 30, 60},
                                      HistoryPoint{at(kStart + 60), 1580.0 / 31, 80, 31, 60}));
}

TEST_F(MonitorHistory, PassesOverGaps)
{
    for (const double seconds : {0.0, -1.0, 90.001, 120.0, std::nan("")}) {
        record(kStart, seconds, 5);
    }
    EXPECT_THAT(points(), IsEmpty());
    EXPECT_EQ(store.range().value(), std::nullopt);
    record(kStart + 90, 90, 5);
    EXPECT_EQ(store.range().value(), (HistoryRange{at(kStart), at(kStart + 60)}));
}

TEST_F(MonitorHistory, RollsUpAfterADayAndKeepsEverySecond)
{
    for (int minute = 1; minute <= 45; ++minute) {
        record(kStart + minute * 60, 60, minute);
    }
    // The second quarter is older than a day by then, the third is not.
    const auto now = at(kStart + kDay + 1'800 + 899);
    ASSERT_TRUE(store.maintain(now, 30));
    auto series = points();
    ASSERT_EQ(series.size(), 2U + 15U);
    EXPECT_EQ(series[0], (HistoryPoint{at(kStart), 8, 15, 900, 900}));
    EXPECT_EQ(series[1], (HistoryPoint{at(kStart + 900), 23, 30, 900, 900}));
    EXPECT_EQ(series[2], (HistoryPoint{at(kStart + 1'800), 31, 31, 60, 60}));
    // A late sample joins its quarter at the next roll-up.
    record(kStart + 60, 60, 99);
    ASSERT_TRUE(store.maintain(now, 30));
    series = points();
    EXPECT_EQ(series[0], (HistoryPoint{at(kStart), (8.0 * 15 + 99) / 16, 99, 960, 900}));
    EXPECT_EQ(series.size(), 17U);
}

TEST_F(MonitorHistory, HoldsToTheRetention)
{
    struct Case {
        std::int64_t days;
        int kept;
    };
    for (const auto &[days, kept] :
         {Case{0, 1}, Case{1, 1}, Case{7, 7}, Case{30, 30}, Case{45, 30}}) {
        ASSERT_TRUE(store.clear());
        for (int day = 0; day < 60; ++day) {
            record(kStart + day * kDay + 60, 60, 1);
        }
        ASSERT_TRUE(store.maintain(at(kStart + 60 * kDay), days));
        EXPECT_EQ(points().size(), static_cast<std::size_t>(kept)) << days;
    }
}

TEST_F(MonitorHistory, ReadsOldestFirstUpToItsLimitWithoutEmptyBuckets)
{
    RawFile::execute(file, "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i+1 FROM n WHERE "
                           "i<5100) INSERT INTO samples SELECT i*60,60,'','cpu',i,1,i FROM n; "
                           "UPDATE samples SET weight=0 WHERE t=60");
    const auto series = points();
    ASSERT_EQ(series.size(), 5'000U);
    EXPECT_EQ(series[0].date, at(0));
    EXPECT_EQ(series[1].date, at(120));
    const auto bounded = store.history(kSystemKey, MetricID::cpu, at(600), at(720)).value();
    EXPECT_EQ(bounded.size(), 3U); // both bounds belong to it
    EXPECT_THAT(store.history("x", MetricID::cpu, at(0), at(1e9)).value(), IsEmpty());
    EXPECT_THAT(store.history(kSystemKey, MetricID::gpu, at(0), at(1e9)).value(), IsEmpty());
}

TEST_F(MonitorHistory, ShowsWhatCausedAJump)
{
    record(kStart + 10, 10, 20);
    auto busy = snapshotAt(kStart + 20, 10, {{MetricID::cpu, 85}});
    for (int n = 0; n < 7; ++n) { // each below what is kept of a calm machine
        busy.apps.push_back({.id = "app-" + std::to_string(n), .cpu = 0.1 * (n + 1)});
    }
    ASSERT_TRUE(store.record(busy));
    const auto series = points();
    ASSERT_EQ(series.size(), 1U);
    const auto names = [&](const HistoryPoint &point) {
        std::vector<std::string> apps;
        const auto causes = store.causes(MetricID::cpu, point).value();
        for (const auto &cause : causes) {
            apps.push_back(cause.app);
        }
        return apps;
    };
    EXPECT_THAT(names(series[0]), ElementsAre("app-6", "app-5", "app-4", "app-3", "app-2"));
    EXPECT_THAT(store.causes(MetricID::gpu, series[0]).value(), IsEmpty());
    ASSERT_TRUE(store.maintain(at(kStart + 2 * kDay), 30));
    EXPECT_THAT(names(points().at(0)),
                ElementsAre("app-6", "app-5", "app-4", "app-3", "app-2"));
}

TEST_F(MonitorHistory, FailsWithoutATraceWhenTheDatabaseRefuses)
{
    record(kStart + 60, 60, 1);
    RawFile::execute(file, "CREATE TRIGGER stop BEFORE INSERT ON samples WHEN NEW.metric='gpu' "
                           "BEGIN SELECT RAISE(FAIL,'no room'); END");
    const auto before = rows();
    const auto recorded =
        store.record(snapshotAt(kStart + 120, 60, {{MetricID::cpu, 1}, {MetricID::gpu, 1}}));
    ASSERT_FALSE(recorded);
    EXPECT_EQ(recorded.error(),
              Base::KestError::storage("Monitor history: Could not save a sample"));
    EXPECT_EQ(rows(), before);

    RawFile::execute(file, "DROP TRIGGER stop; CREATE TRIGGER stop BEFORE INSERT ON samples "
                           "BEGIN SELECT RAISE(FAIL,'no room'); END");
    const auto maintained = store.maintain(at(kStart + 2 * kDay), 30);
    ASSERT_FALSE(maintained);
    EXPECT_EQ(maintained.error().message, "Monitor history: no room");
    EXPECT_EQ(count(), "1");
    RawFile::execute(file, "DROP TRIGGER stop");
    EXPECT_TRUE(store.maintain(at(kStart + 2 * kDay), 30)); // no transaction was left open
    EXPECT_FALSE(store.takeNotice());
}

TEST_F(MonitorHistory, ClearsAndStaysOpen)
{
    record(kStart + 60, 60, 1);
    ASSERT_TRUE(store.clear());
    EXPECT_EQ(store.range().value(), std::nullopt);
    record(kStart + 60, 60, 1);
    EXPECT_EQ(points().size(), 1U);
}

// Memory where there is some: a month's writes would mostly wait for the disk.
std::filesystem::path quickFolder()
{
    return std::filesystem::is_directory("/dev/shm") ? std::filesystem::path{"/dev/shm"}
                                                     : std::filesystem::temp_directory_path();
}

// A month of 25 metrics and 40 applications. What is older than a day ends as one row for each
// quarter however often it was sampled, and the last day as one for each minute, so one sample
// in each stands for all that came every ten seconds. Hourly roll-ups leave about a quarter
// more room unused in the file.
TEST(MonitorHistorySize, OfABusyMonthStaysWithinItsLimit)
{
    const TemporaryFolder folder{quickFolder()};
    auto store = MonitorHistoryStore::open(folder.path() / "history.sqlite").value();
    MonitorSnapshot sample{.interval = 10};
    for (const auto &[metric, text] : enumTexts(Base::Of<MetricID>{})) {
        sample.readings[metric] = {.value = 12.5, .state = MetricState::available};
    }
    for (int n = 0; n < 40; ++n) {
        const double load = n < 12 ? 8 : 0.2; // most idle, as on a desk
        sample.apps.push_back({.id = "org.example.Application" + std::to_string(n),
                               .cpu = load,
                               .memory = n * 5e6,
                               .diskWrite = load * 2'000,
                               .energy = load});
    }
    const double end = kStart + 30 * kDay;
    for (double time = kStart + 10; time < end; time += time < end - kDay ? 900 : 60) {
        sample.timestamp = at(time);
        ASSERT_TRUE(store.record(sample));
    }
    ASSERT_TRUE(store.maintain(at(end), 30));
    EXPECT_LE(store.size(), static_cast<std::uintmax_t>(kHistoryByteLimit));
    EXPECT_EQ(store.range()->value().from, at(kStart)); // and nothing had to go for it
    RecordProperty("megabytes", static_cast<int>(store.size() / 1'000'000));

    constexpr std::int64_t kSmall = 4'000'000;
    constexpr std::uintmax_t kSideFile = 32'768; // SQLite's index of its log
    ASSERT_TRUE(store.maintain(at(end), 30, kSmall));
    EXPECT_LE(store.size(), kSmall + kSideFile);
    EXPECT_GT(store.range()->value().from, at(end - kDay)); // the oldest went
    EXPECT_GT(store.range()->value().to, at(end - 120));    // the newest stayed
    ASSERT_TRUE(store.maintain(at(end), 30, -1));
    EXPECT_EQ(store.range().value(), std::nullopt);
}

} // namespace
