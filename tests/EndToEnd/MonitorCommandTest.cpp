// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "MonitorCore/MonitorHistoryStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/EndToEnd/TerminalProgram.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <sys/prctl.h>

#include <cmath>

using MonitorCore::MetricID;
using MonitorCore::MonitorHistoryStore;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;

namespace
{

constexpr const char *kHistory = "Monitor/history.sqlite";

// A process that waits until it is ended, under a name of its own.
class Sleeper
{
public:
    explicit Sleeper(const char *name)
    {
        m_pid = fork();
        if (m_pid == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            prctl(PR_SET_NAME, name);
            while (true) {
                pause();
            }
        }
    }
    Sleeper(const Sleeper &) = delete;
    Sleeper &operator=(const Sleeper &) = delete;
    ~Sleeper()
    {
        if (m_pid > 0) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, nullptr, 0);
        }
    }

    bool isAlive() const { return waitpid(m_pid, nullptr, WNOHANG) == 0; }

    // The signal that ended it.
    int waitForEnd()
    {
        int status = 0;
        waitpid(m_pid, &status, 0);
        m_pid = -1;
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

private:
    pid_t m_pid = -1;
};

double numberAfter(const std::string &text, const std::string &key)
{
    const std::size_t at = text.find(key);
    return at == std::string::npos ? -1 : std::atof(text.c_str() + at + key.size());
}

// A history in which an application was busy in each of the last minutes until now.
void makeBusyHistory(const std::filesystem::path &folder, int minutes, double cpu)
{
    auto store = *MonitorHistoryStore::open(folder / kHistory);
    const double now = Base::seconds1970(Base::wallClock());
    for (int minute = minutes; minute > 0; --minute) {
        MonitorCore::MonitorSnapshot snapshot{
            .timestamp = Base::fromSeconds1970(std::floor(now / 60 - minute + 1) * 60),
            .interval = 60};
        snapshot.readings[MetricID::memoryUsed] = {.value = 1e9,
                                                   .unit = MonitorCore::MetricUnit::bytes};
        snapshot.apps.push_back({.id = "/usr/bin/mill", .name = "mill", .cpu = cpu});
        ASSERT_TRUE(store.record(snapshot));
    }
}

} // namespace

TEST(MonitorCommand, PrintsOneSampleWithRates)
{
    const TemporaryFolder folder;
    const auto outcome = runKest(folder.path(), {"monitor", "--once", "--json"});
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr(R"("cpu":{"value":)"));
    EXPECT_THAT(outcome.out, StartsWith(R"({"timestamp":")"));
    EXPECT_GE(numberAfter(outcome.out, R"("interval":)"), 1);
    EXPECT_GT(numberAfter(outcome.out, R"("uptime":)"), 0);
    EXPECT_THAT(outcome.out, HasSubstr(R"("name":"kest")")) << "it is a process itself";
    EXPECT_FALSE(std::filesystem::exists(folder.database())) << "to look makes nothing";
}

TEST(MonitorCommand, RecordsAHistoryAndLetsNoSecondRecorderIn)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"monitor", "history", "cpu", "--json"}).out, "[]\n");
    EXPECT_FALSE(std::filesystem::exists(folder.path() / kHistory));

    const pid_t first = startKest(folder.path(), {"monitor", "record", "--interval", "0.2"});
    std::string points = "[]\n";
    for (int tries = 0; points == "[]\n" && tries < 600; ++tries) {
        usleep(50'000);
        points = runKest(folder.path(), {"monitor", "history", "cpu", "--json"}).out;
    }
    EXPECT_THAT(points, MatchesRegex(R"(\[\{"date":"[^"]+:00Z","value":.*"resolution":60.*\}\])"
                                     "\n"));
    const auto second = runKest(folder.path(), {"monitor", "record", "--count", "1"});
    EXPECT_EQ(second.status, 1);
    EXPECT_EQ(second.err, "kest: The monitor's recorder is in use by kest (process " +
                              std::to_string(first) + ")\n");
    kill(first, SIGTERM);
    int status = 0;
    ASSERT_EQ(waitpid(first, &status, 0), first);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);

    const auto third = runKest(
        folder.path(), {"monitor", "record", "--interval", "0.2", "--count", "2", "--json"});
    EXPECT_THAT(third.out, HasSubstr(R"({"samples":2,)")) << third.err;
}

TEST(MonitorCommand, FindsTheAlertsOfWhatWasRecorded)
{
    const TemporaryFolder folder;
    makeBusyHistory(folder.path(), 20, 95);
    const auto alerts = [&] { return runKest(folder.path(), {"monitor", "alerts", "--json"}); };
    EXPECT_THAT(alerts().out, HasSubstr(R"([{"id":"/usr/bin/mill|cpu")"));
    const auto points = runKest(
        folder.path(), {"monitor", "history", "cpu", "--app", "/usr/bin/mill", "--hours", "1"});
    EXPECT_THAT(points.out, HasSubstr("Mean 95 %, peak 95 %"));

    const auto prefer = [&](std::string text) {
        runKest(folder.path(), {"settings", "set", "stats.preferences", std::move(text)});
    };
    prefer(R"({"historyEnabled":true,"historyPaused":false,"retentionDays":30,)"
           R"("alertsEnabled":false,"cpuThreshold":96,"cpuDuration":600,)"
           R"("memoryGrowthBytes":1e9,"diskThreshold":0,"networkThreshold":0,)"
           R"("excludedApps":[],"pinMetric":"cpu","menuStyle":"icon","menuMetric":"cpu"})");
    EXPECT_EQ(alerts().out, "[]\n");
    prefer("{}");
    EXPECT_EQ(alerts().status, 1);
    EXPECT_THAT(alerts().err, HasSubstr("kest settings unset stats.preferences"));
}

TEST(MonitorCommand, RefusesWhatItDoesNotKnow)
{
    const TemporaryFolder folder;
    const auto metric = runKest(folder.path(), {"monitor", "history", "weight"});
    EXPECT_EQ(metric.status, 1);
    EXPECT_THAT(metric.err, HasSubstr("choose one of cpu, cpuUser"));
    EXPECT_EQ(runKest(folder.path(), {"monitor", "history", "cpu", "--from", "noon"}).status,
              1);
    using Words = std::vector<std::string>;
    for (const Words &words :
         {Words{"--interval", "0"}, Words{"record", "--interval", "nan"},
          Words{"history", "cpu", "--hours", "nan"}, Words{"--once", "--count", "2"},
          Words{"--count", "2", "record"}}) {
        Words arguments{"monitor"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        EXPECT_EQ(runKest(folder.path(), arguments).status, 2) << words.front();
    }
    EXPECT_THAT(runKest(folder.path(), {"monitor"}).err, HasSubstr("kest monitor --once"));
}

TEST(MonitorOnATerminal, QuitsTheProcessThatWasChosenAndAgreedTo)
{
    Sleeper other{"kest-sleeper-b"};
    Sleeper sleeper{"kest-sleeper-a"};
    const TemporaryFolder folder;
    TerminalProgram monitor{folder.path(), {"monitor"}};
    ASSERT_TRUE(monitor.shows("Processor"));
    ASSERT_TRUE(monitor.shows("processes"));
    monitor.type("\t/kest-sleeper\r");
    ASSERT_TRUE(monitor.shows("kest-sleeper-b"));
    monitor.type("n\x1bOBk");
    ASSERT_TRUE(monitor.shows("Quit kest-sleeper-a?"));
    monitor.forget();
    monitor.type("n");
    ASSERT_TRUE(monitor.shows("select")); // the keys stand in the place of the question again
    EXPECT_TRUE(sleeper.isAlive());
    monitor.type("ky");
    EXPECT_EQ(sleeper.waitForEnd(), SIGTERM);
    EXPECT_TRUE(other.isAlive());
    monitor.type("q");
    EXPECT_EQ(monitor.wait(), 0);
}
