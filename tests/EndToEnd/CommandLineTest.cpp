// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <algorithm>
#include <thread>

using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::StartsWith;
using Words = std::vector<std::string>;

namespace
{

constexpr int kRefused = 1;
constexpr int kWrongUsage = 2;

} // namespace

TEST(CommandLine, CountsThroughAWholeSession)
{
    struct Case {
        Words words;
        const char *answer;
    };
    const TemporaryFolder folder;
    const auto answer = [](std::string rest) { return rest + "\n"; };
    for (
        const auto &[words, expected] : {
            Case{
                {"count"},
                R"({"count":1,"target":33,"targetReached":false,"paused":false,"revision":1})"},
            Case{{"target", "3"},
                 R"({"count":1,"target":3,"targetReached":false,"paused":false,"revision":2})"},
            Case{{"count", "2"},
                 R"({"count":3,"target":3,"targetReached":true,"paused":false,"revision":4})"},
            Case{{"undo"},
                 R"({"count":2,"target":3,"targetReached":false,"paused":false,"revision":5})"},
            Case{{"undo", "9"},
                 R"({"count":0,"target":3,"targetReached":false,"paused":false,"revision":7})"},
            Case{{"undo"},
                 R"({"count":0,"target":3,"targetReached":false,"paused":false,"revision":7})"},
            Case{{"pause"},
                 R"({"count":0,"target":3,"targetReached":false,"paused":true,"revision":8})"},
            Case{{"count"},
                 R"({"count":0,"target":3,"targetReached":false,"paused":true,"revision":8})"},
            Case{{"pause"},
                 R"({"count":0,"target":3,"targetReached":false,"paused":false,"revision":9})"},
            Case{{"target", "none"},
                 R"({"count":0,"targetReached":false,"paused":false,"revision":10})"},
            Case{{"count", "5"},
                 R"({"count":5,"targetReached":false,"paused":false,"revision":15})"},
            Case{{"finish"},
                 R"({"count":0,"targetReached":false,"paused":false,"revision":16})"},
        }) {
        SCOPED_TRACE(testing::PrintToString(words));
        Words arguments{"--json"};
        arguments.insert(arguments.end(), words.begin(), words.end());
        const auto outcome = runKest(folder.path(), arguments);
        EXPECT_EQ(outcome.out, answer(expected));
        EXPECT_EQ(outcome.err, "");
        EXPECT_EQ(outcome.status, 0);
    }
    EXPECT_THAT(runKest(folder.path(), {"history", "--json"}).out,
                MatchesRegex(R"(\[\{"id":"[0-9A-F-]{36}","dhikrId":"subhanallah","count":5,)"
                             R"("endedAt":[0-9.]+\}\])"
                             "\n"));
}

TEST(CommandLine, RefusesWithAMessageAndChangesNothing)
{
    const TemporaryFolder folder;
    ASSERT_EQ(runKest(folder.path(), {"count", "3"}).status, 0);
    const std::string before = runKest(folder.path(), {"state"}).out;
    struct Case {
        Words words;
        int status;
        const char *message;
    };
    for (const auto &[words, status, message] : {
             Case{{"reset"}, kRefused, "kest: Confirm before resetting a nonempty session\n"},
             Case{{"target", "0"}, kRefused, "kest: Target must be between 1 and 1,000,000\n"},
             Case{{"target", "1000001"},
                  kRefused,
                  "kest: Target must be between 1 and 1,000,000\n"},
             Case{{"target", "99999999999999999999"},
                  kRefused,
                  "kest: Target must be between 1 and 1,000,000\n"},
             Case{{"select", "nothing"}, kRefused, "kest: No phrase has the id \"nothing\""},
             Case{{"select", "--name", "subhanallah"}, kRefused, "kest: No Name has the id"},
             Case{{"settings", "get", "a.b"},
                  kRefused,
                  "kest: The setting \"a.b\" is not set\n"},
             Case{{"settings", "set", std::string(101, 'k'), "v"},
                  kRefused,
                  "kest: Invalid native settings\n"},
             Case{{"settings", "set", "k", "\xff"},
                  kRefused,
                  "kest: Text that is not valid UTF-8 cannot be saved\n"},
             Case{{"counter"}, kRefused, "kest: The counter needs a terminal"},
             Case{{"count", "0"}, kWrongUsage, ""},
             Case{{"count", "x"}, kWrongUsage, ""},
             Case{{"target"}, kWrongUsage, ""},
             Case{{"dance"},
                  kWrongUsage,
                  "kest: there is no command \"dance\"; kest --help lists them\n"},
             Case{{}, kWrongUsage, ""},
             Case{{"show", "--colour"}, kWrongUsage, ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(words));
        const auto outcome = runKest(folder.path(), words);
        EXPECT_EQ(outcome.status, status);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, StartsWith(message));
        EXPECT_NE(outcome.err, "");
    }
    EXPECT_EQ(runKest(folder.path(), {"state"}).out, before);
    EXPECT_EQ(runKest(folder.path(), {"reset", "--yes"}).status, 0);
}

TEST(CommandLine, ChoosesPhrasesAndNames)
{
    const TemporaryFolder folder;
    const auto chosen = runKest(folder.path(), {"--json", "select", "astaghfirullah"});
    EXPECT_THAT(chosen.out, StartsWith(R"({"phrase":{"id":"astaghfirullah",)"));
    EXPECT_THAT(chosen.out, EndsWith("\"revision\":1}\n"));
    EXPECT_THAT(runKest(folder.path(), {"show"}).out, HasSubstr("Astaghfiru"));
    EXPECT_THAT(runKest(folder.path(), {"select", "--name", "al-malik", "--json"}).out,
                StartsWith(R"({"phrase":{"id":"al-malik",)"));
    EXPECT_THAT(runKest(folder.path(), {"state"}).out,
                HasSubstr(R"("selectedDhikrId":"astaghfirullah","selectedNameId":"al-malik")"));
    EXPECT_THAT(runKest(folder.path(), {"names", "--search", "mumin", "--json"}).out,
                StartsWith(R"([{"id":"al-mumin",)"));
    EXPECT_THAT(runKest(folder.path(), {"names", "--search", "الرحمن"}).out,
                StartsWith("ar-rahman"));
    EXPECT_EQ(runKest(folder.path(), {"names", "--search", "qwxz", "--json"}).out, "[]\n");
}

TEST(CommandLine, KeepsSettingsAndShowsDocuments)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"settings", "set", "prayer.method", "karachi"}).out, "");
    EXPECT_EQ(runKest(folder.path(), {"settings", "get", "prayer.method"}).out, "karachi\n");
    EXPECT_EQ(runKest(folder.path(), {"--json", "settings"}).out,
              "{\"prayer.method\":\"karachi\"}\n");
    EXPECT_EQ(runKest(folder.path(), {"--json", "settings", "unset", "prayer.method"}).out,
              "{}\n");
    EXPECT_THAT(runKest(folder.path(), {"companion"}).out,
                StartsWith(R"({"schemaVersion":1,"dock":{)"));
    EXPECT_THAT(runKest(folder.path(), {"tools", "--json"}).out,
                StartsWith(R"([{"id":"home")"));
    EXPECT_EQ(runKest(folder.path(), {"records", "--json"}).out, "[]\n");
    const auto doctor = runKest(folder.path(), {"doctor", "--json"});
    EXPECT_EQ(doctor.status, 0) << doctor.out << doctor.err;
    EXPECT_THAT(doctor.out,
                HasSubstr(R"({"check":"database file","state":"full","detail":"ok"})"));
}

TEST(CommandLine, StoredTextsCannotDriveTheTerminal)
{
    const TemporaryFolder folder;
    {
        auto store = *KestCore::StateStore::open(folder.database());
        std::string id = "\x1b";
        for (int n = 0; n < 30; ++n) {
            id += "\u00e9";
        }
        ASSERT_TRUE(
            store.upsertRecord({.id = id + "m", .kind = "free", .title = "a\nb\x1b[2J"}));
    }
    const auto records = runKest(folder.path(), {"records"});
    EXPECT_EQ(records.status, 0) << records.err;
    EXPECT_FALSE(records.out.contains('\x1b'));
    EXPECT_EQ(std::ranges::count(records.out, '\n'), 1);
}

TEST(CommandLine, AClosedOutputHarmsNoFile)
{
    const TemporaryFolder folder;
    ASSERT_EQ(runKest(folder.path(), {"count"}).status, 0);
    const std::string command =
        std::string{KEST_PROGRAM} + " --data-dir " + folder.path().string() + " state >&- 2>&-";
    EXPECT_EQ(std::system(command.c_str()), 0);
    EXPECT_THAT(Base::readFile(folder.path() / "kest.lock").value_or(""),
                StartsWith("kest (process "));
}

TEST(CommandLine, DoctorTellsWhatIsBroken)
{
    const TemporaryFolder folder;
    FILE *file = std::fopen(folder.database().c_str(), "w");
    std::fputs("this is no database, whatever its name says", file);
    std::fclose(file);
    const auto doctor = runKest(folder.path(), {"doctor"});
    EXPECT_EQ(doctor.status, kRefused);
    EXPECT_THAT(doctor.out, HasSubstr("Velvetnook could not open its local data"));
    EXPECT_THAT(doctor.err, StartsWith("kest: "));
}

TEST(CommandLine, ManyAtOnceLoseNoCount)
{
    const TemporaryFolder folder;
    {
        std::vector<std::jthread> threads;
        for (int n = 0; n < 8; ++n) {
            threads.emplace_back([&folder] {
                for (int step = 0; step < 5; ++step) {
                    const auto outcome = runKest(folder.path(), {"count", "2"});
                    EXPECT_EQ(outcome.status, 0) << outcome.err;
                }
            });
        }
    }
    const auto store = *KestCore::StateStore::open(folder.database());
    EXPECT_EQ(store.state().devotional.session.count, 80);
    EXPECT_EQ(store.state().revision, 80);
}

TEST(CommandLine, SaysWhoHoldsTheStore)
{
    const TemporaryFolder folder;
    const auto store = *KestCore::StateStore::open(folder.database());
    const auto outcome = runKest(folder.path(), {"count"});
    EXPECT_EQ(outcome.status, kRefused);
    EXPECT_EQ(outcome.err, "kest: Velvetnook's data is in use by EndToEndTests (process " +
                               std::to_string(getpid()) + ")\n");
}

TEST(CommandLine, TellsShellsWhatMayComeNext)
{
    const TemporaryFolder folder;
    EXPECT_THAT(runKest(folder.path(), {"complete", "--"}).out,
                testing::AllOf(HasSubstr("count\n"), HasSubstr("--json\n"),
                               testing::Not(HasSubstr("complete\n"))));
    EXPECT_THAT(runKest(folder.path(), {"complete", "--", "select", "--name"}).out,
                HasSubstr("ar-rahman\n"));
    EXPECT_THAT(runKest(folder.path(), {"complete", "--", "settings", "get"}).out,
                HasSubstr("prayer.method\n"));
    for (const char *shell : {"bash", "zsh", "fish"}) {
        EXPECT_THAT(runKest(folder.path(), {"completion", shell}).out,
                    HasSubstr("kest complete -- "));
    }
}

TEST(CommandLine, AnOutputThatCannotBeWrittenIsAFailure)
{
    const TemporaryFolder folder;
    const std::string command = std::string{KEST_PROGRAM} + " --data-dir " +
                                folder.path().string() + " phrases > /dev/full 2>/dev/null";
    EXPECT_NE(std::system(command.c_str()), 0);
}
