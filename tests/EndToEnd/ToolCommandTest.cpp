// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "KestCore/Tools/TimerList.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <cstdlib>

using testing::AllOf;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;
using Words = std::vector<std::string>;

namespace
{

// Numbers written as one country writes them, while it lives.
class NumberLocale
{
public:
    explicit NumberLocale(const char *name) { setenv("LC_ALL", name, 1); }
    ~NumberLocale() { unsetenv("LC_ALL"); }
    NumberLocale(const NumberLocale &) = delete;
    NumberLocale &operator=(const NumberLocale &) = delete;
};

// Stores a timer that was started some seconds ago, when it may have run before.
void putTimer(const TemporaryFolder &folder, const std::string &id, std::string_view mode,
              double duration, double ago, double elapsed = 0)
{
    using namespace KestCore;
    const Base::Instant begun = Base::wallClock() - Base::Seconds{ago};
    Timer timer{.record = {.id = id, .kind = "timer", .title = "Title"},
                .state = newTimer(mode, duration)};
    timer.state.elapsed = elapsed;
    start(timer.state, begun);
    auto store = StateStore::open(folder.path() / "kest.sqlite");
    ASSERT_TRUE(store);
    ASSERT_TRUE(store->changeRecords({.written = {*savedTimer(timer, begun)}}));
}

std::string completionsIn(const TemporaryFolder &folder)
{
    return runKest(folder.path(), {"--json", "records", "--kind", "completion"}).out;
}

} // namespace

TEST(TimerCommand, StartsListsPausesAndRemoves)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"--json", "timer", "list"}).out, "[]\n");
    EXPECT_THAT(runKest(folder.path(), {"--json", "timer", "start", "pomodoro"}).out,
                MatchesRegex(R"(\[\{"id":"[0-9A-F-]{36}","title":"Focus","mode":"pomodoro",)"
                             R"("remaining":1500,"running":true,"ended":false,)"
                             R"("deadline":"20[0-9:.T-]*Z"\}\])"
                             "\n"));
    ASSERT_EQ(
        runKest(folder.path(), {"settings", "set", "timer.duration.countdown", "2"}).status, 0);
    EXPECT_THAT(runKest(folder.path(), {"timer", "start", "countdown"}).out,
                HasSubstr("  0:02:00  running  Timer\n"));
    EXPECT_THAT(runKest(folder.path(), {"timer", "start", "countdown", "--minutes", "61",
                                        "--title", " Tea\u202E "})
                    .out,
                HasSubstr("  1:01:00  running  Tea·\n"));
    putTimer(folder, "xyz-1", "stopwatch", 600, 3725);
    putTimer(folder, "xyz-2", "countdown", 600, 601);
    const std::string line = "[0-9A-Fxyz-]{4,6} +";
    EXPECT_THAT(runKest(folder.path(), {"timer"}).out,
                MatchesRegex(line + "0:00:00  ended    Title\n" + line +
                             "0:0[12]:[0-9]{2}  running  Timer\n" + line +
                             "0:2[45]:[0-9]{2}  running  Focus\n" + line +
                             "1:0[01]:[0-9]{2}  running  Tea·\n" + line +
                             "1:0[23]:[0-9]{2}  running  Title\n"));
    EXPECT_THAT(runKest(folder.path(), {"timer", "pause", "XYZ-1"}).out,
                MatchesRegex("xyz-1 +1:0[23]:[0-9]{2}  paused  Title\n"));
    EXPECT_THAT(runKest(folder.path(), {"timer", "resume", "xyz-2"}).out,
                HasSubstr("0:10:00  running  Title\n"));
    EXPECT_THAT(runKest(folder.path(), {"--json", "timer", "adjust", "xyz-2", "75"}).out,
                HasSubstr(R"("remaining":75,)"));
    EXPECT_EQ(runKest(folder.path(), {"timer", "remove", "xyz-2"}).out, "Removed Title\n");
    EXPECT_THAT(runKest(folder.path(), {"timer", "list"}).out,
                testing::Not(HasSubstr("xyz-2")));
}

TEST(TimerCommand, RefusesWithAMessageAndChangesNothing)
{
    const TemporaryFolder folder;
    putTimer(folder, "ab1", "stopwatch", 600, 1);
    putTimer(folder, "ab2", "countdown", 600, 100);
    const std::string limits = "kest: Choose between 1 minute and 365 days.\n";
    const auto records = [&] { return runKest(folder.path(), {"--json", "records"}).out; };
    const std::string before = records();
    struct Case {
        Words words;
        int status;
        std::string message;
    };
    for (const auto &[words, status, message] : {
             Case{{"start", "egg"},
                  1,
                  "kest: There is no timer \"egg\"; choose one of pomodoro, countdown, "
                  "stopwatch, hydration\n"},
             Case{{"start", "break"}, 1, "kest: There is no timer \"break\"; "},
             Case{{"start", "countdown", "--minutes", "0"}, 1, limits},
             Case{{"start", "countdown", "--minutes", "525601"}, 1, limits},
             Case{{"start", "countdown", "--minutes", "ten"}, 1, limits},
             Case{{"start", "countdown", "--minutes", "nan"}, 1, limits},
             Case{{"start", "stopwatch", "--minutes", "5"},
                  1,
                  "kest: A stopwatch has no length.\n"},
             Case{{"start", "countdown", "--title", "A\x1b[2J"},
                  1,
                  "kest: A title is one line of at most 200 characters\n"},
             Case{{"start", "countdown", "--title", "\xff"},
                  1,
                  "kest: Text that is not valid UTF-8 cannot be saved\n"},
             Case{{"pause", "zz"}, 1, "kest: No timer has the id \"zz\"\n"},
             Case{{"remove", "ab"}, 1, "kest: 2 ids begin with \"ab\"; write more of the id\n"},
             Case{{"adjust", "ab2", "59"}, 1, limits},
             Case{{"adjust", "ab2", "1m"}, 1, limits},
             Case{{"adjust", "ab2", "31536000"},
                  1,
                  "kest: Total timer duration cannot exceed 365 days.\n"},
             Case{{"adjust", "ab1", "60"}, 1, limits},
             Case{{"wait", "ab1"}, 1, "kest: A stopwatch never ends.\n"},
             Case{{"start"}, 2, ""},
             Case{{"pause"}, 2, ""},
             Case{{"adjust", "ab2"}, 2, ""},
             Case{{"dance"}, 2, ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        Words arguments{"timer"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const auto outcome = runKest(folder.path(), arguments);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, StartsWith(message));
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_EQ(records(), before);
}

TEST(TimerCommand, WaitsUntilTheEnd)
{
    const TemporaryFolder folder;
    putTimer(folder, "over", "countdown", 60, 61);
    putTimer(folder, "soon", "countdown", 60, 59.5);
    EXPECT_THAT(runKest(folder.path(), {"timer", "wait", "over"}).out, HasSubstr("ended"));
    const auto outcome = runKest(folder.path(), {"--json", "timer", "wait", "soon"});
    EXPECT_THAT(outcome.out, HasSubstr(R"("remaining":0,"running":true,"ended":true)"));
    EXPECT_EQ(outcome.status, 0);
}

TEST(TimerCommand, ARunThatAClockSetBackBeganAnewIsSaved)
{
    const TemporaryFolder folder;
    constexpr double kSetBack = 3600;
    putTimer(folder, "list", "countdown", 600, -kSetBack);
    const auto first = runKest(folder.path(), {"--json", "timer", "list"});
    EXPECT_THAT(first.out, HasSubstr(R"("remaining":600,)"));
    const auto deadline = first.out.substr(first.out.find("\"deadline\""));
    EXPECT_THAT(runKest(folder.path(), {"--json", "timer", "list"}).out, HasSubstr(deadline));

    putTimer(folder, "wait", "countdown", 60, -kSetBack, 59.5);
    EXPECT_THAT(runKest(folder.path(), {"--json", "timer", "wait", "wait"}).out,
                HasSubstr(R"("remaining":0,"running":true,"ended":true)"));
}

TEST(TimerCommand, AnEndThatNobodyAnnouncedIsCompletedByWhoActsOnIt)
{
    struct Case {
        Words words;
        bool isCompleted;
        std::string shown;
    };
    for (const auto &[words, isCompleted, shown] : {
             Case{{"list"}, false, "ended"},
             Case{{"pause", "own"}, false, "ended"},
             Case{{"resume", "own"}, true, "0:10:00  running"},
             Case{{"adjust", "own", "90"}, true, "0:01:30  running"},
             Case{{"adjust", "own", "1"}, false, ""},
             Case{{"remove", "own"}, true, "Removed"},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        const TemporaryFolder folder;
        putTimer(folder, "own", "pomodoro", 600, 700);
        putTimer(folder, "water", "hydration", 600, 700);
        Words arguments{"timer"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        EXPECT_THAT(runKest(folder.path(), arguments).out, HasSubstr(shown));
        const auto once = completionsIn(folder);
        EXPECT_EQ(once.find("pomodoro") != std::string::npos, isCompleted) << once;
        EXPECT_THAT(once, testing::Not(HasSubstr("hydration")));
        runKest(folder.path(), {"timer", "resume", "own"});
        runKest(folder.path(), {"timer", "pause", "own"});
        if (isCompleted) {
            EXPECT_EQ(completionsIn(folder), once);
        }
    }
    const TemporaryFolder folder;
    putTimer(folder, "water", "hydration", 600, 700);
    EXPECT_THAT(runKest(folder.path(), {"timer", "resume", "water"}).out,
                HasSubstr("0:10:00  running"));
    EXPECT_THAT(completionsIn(folder), HasSubstr("hydration"));
}

TEST(ConvertCommand, ConvertsAndSaysWhyNot)
{
    const TemporaryFolder folder;
    const NumberLocale plain{"C.UTF-8"};
    EXPECT_EQ(runKest(folder.path(), {"convert", "5", "km", "mi"}).out,
              "5 km = 3.10685596119 mi\n");
    EXPECT_EQ(runKest(folder.path(), {"convert", "-40 c to f"}).out, "-40 °C = -40 °F\n");
    EXPECT_EQ(runKest(folder.path(), {"convert", "-40", "c", "f", "--json"}).out,
              "{\"category\":\"Temperature\",\"result\":\"-40\",\"from\":\"°C\","
              "\"to\":\"°F\"}\n");
    struct Case {
        Words words;
        const char *message;
    };
    const char *cannot = "kest: Choose compatible units and a finite number\n";
    for (const auto &[words, message] : {
             Case{{"5", "kg", "m"}, cannot},
             Case{{"inf", "m", "km"}, cannot},
             Case{{"1e400", "m", "km"}, cannot},
             Case{{"3,5", "m", "km"}, cannot},
             Case{{"5", "kmm", "mi"}, "kest: There is no unit \"kmm\"; the nearest are km, mm"},
             Case{{"5"}, "kest: Write a number and two units, such as 5 km to mi\n"},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        Words arguments{"convert"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const auto outcome = runKest(folder.path(), arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, StartsWith(message));
    }
    EXPECT_EQ(runKest(folder.path(), {"convert"}).status, 2);
    const NumberLocale german{"de_DE.UTF-8"};
    EXPECT_EQ(runKest(folder.path(), {"convert", "3,5 kg to g"}).out, "3,5 kg = 3500 g\n");
    EXPECT_THAT(runKest(folder.path(), {"--json", "convert", "1", "m", "km"}).out,
                HasSubstr(R"("result":"0,001")"));
}

TEST(ToolCommands, CompleteTheirFixedWords)
{
    const TemporaryFolder folder;
    EXPECT_THAT(runKest(folder.path(), {"complete", "--", "timer", "start"}).out,
                AllOf(HasSubstr("hydration\n"), HasSubstr("--minutes\n")));
    EXPECT_THAT(runKest(folder.path(), {"complete", "--", "convert"}).out,
                HasSubstr("US gal\n"));
}
