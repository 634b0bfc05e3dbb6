// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "tests/EndToEnd/Program.h"
#include "tests/EndToEnd/TerminalProgram.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

using testing::HasSubstr;
using testing::Not;

// With a keyring the commands are tested by check-keyring.sh.

TEST(InsightCommand, AsksForTheKeyWithoutShowingIt)
{
    const TemporaryFolder folder;
    struct Case {
        const char *typed;
        const char *answer;
    };
    for (const auto &[typed, answer] : {
             Case{"sk_live_qwert\r", "kest: This is a secret Stripe key"},
             Case{"sk_live_qwertXX\x7F\x7F\r", "kest: This is a secret Stripe key"},
             Case{"xx\x15sk_live_qwert\x04", "kest: This is a secret Stripe key"},
             Case{"sk_live_qwert\x1a", "kest: No key was entered; nothing changed"},
             Case{"qwert\r", "kest: This is no restricted Stripe key."},
             Case{"rk_live_qwert\x03", "kest: No key was entered; nothing changed"},
             Case{"\r", "kest: No key on standard input"},
         }) {
        TerminalProgram program{folder.path(), {"insights", "connect", "stripe"}};
        ASSERT_TRUE(program.shows("Restricted Stripe key with Balance read access: "));
        program.type(typed);
        EXPECT_TRUE(program.shows(answer)) << program.screen();
        EXPECT_EQ(program.wait(), 1);
        EXPECT_THAT(program.screen(), Not(HasSubstr("qwert")));
    }
    EXPECT_FALSE(std::filesystem::exists(folder.database()));
}

TEST(InsightCommand, KnowsItsProvidersAndOptions)
{
    const TemporaryFolder folder;
    EXPECT_EQ(runKest(folder.path(), {"insights"}).status, 2);
    EXPECT_EQ(runKest(folder.path(), {"insights", "connect", "bank"}).status, 2);
    for (const std::vector<std::string> &words :
         {std::vector<std::string>{"insights", "connect", "rk_live_qwert"},
          std::vector<std::string>{"insights", "connect", "stripe", "rk_live_qwert"}}) {
        const auto outcome = runKest(folder.path(), words);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.out + outcome.err, Not(HasSubstr("qwert"))) << "no key is quoted";
    }
    EXPECT_EQ(runKest(folder.path(), {"insights", "connect", "stripe", "rk_live_1"}).status, 2)
        << "a key among the arguments is seen by everybody on the machine";
    EXPECT_EQ(runKest(folder.path(), {"insights", "stripe", "--website", "1"}).status, 2);
    EXPECT_THAT(
        runKest(folder.path(), {"complete", "--", "insights", "stripe", "--period"}).out,
        HasSubstr("today\n7d\n30d\n90d\nmonth\nyear\n"));
    EXPECT_THAT(runKest(folder.path(), {"complete", "--", "insights", "connect"}).out,
                HasSubstr("stripe\ndatafast\n"));
}
