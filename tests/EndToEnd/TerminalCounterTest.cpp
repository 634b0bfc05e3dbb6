// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"
#include "tests/EndToEnd/Program.h"
#include "tests/EndToEnd/TerminalProgram.h"
#include "tests/RawFile.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace
{

// Whether the stored session comes to look like this within ten seconds.
bool comesTo(const std::filesystem::path &file, std::string_view session)
{
    for (int tries = 0; tries < 1000; ++tries) {
        const auto rows = RawFile::query(file, "SELECT body FROM state");
        if (!rows.empty() && rows.front().contains(session)) {
            return true;
        }
        usleep(10'000);
    }
    return false;
}

} // namespace

TEST(TerminalCounter, CountsOnKeysAndLetsOthersIn)
{
    const TemporaryFolder folder;
    TerminalProgram counter{folder.path(), {"counter"}};
    ASSERT_TRUE(counter.shows("0 of 33"));
    counter.type("   u");
    ASSERT_TRUE(comesTo(folder.database(), R"("count":2,"target":33)"));
    counter.type("t12\r");
    ASSERT_TRUE(comesTo(folder.database(), R"("count":2,"target":12)"));
    // Left alone, it gives the store to whoever asks, and goes on from what they did.
    const auto other = runKest(folder.path(), {"count", "5"});
    EXPECT_EQ(other.status, 0) << other.err;
    EXPECT_EQ(other.out, "7 of 12\n");
    counter.type(" pq");
    EXPECT_EQ(counter.wait(), 0);
    const auto store = *KestCore::StateStore::open(folder.database());
    const auto &session = store.state().devotional.session;
    EXPECT_EQ(session.count, 8);
    EXPECT_EQ(session.target, 12);
    EXPECT_TRUE(session.isPaused);
}

TEST(TerminalCounter, AKillInTheMiddleLosesNothing)
{
    const TemporaryFolder folder;
    {
        TerminalProgram counter{folder.path(), {"counter"}};
        ASSERT_TRUE(counter.shows("0 of 33"));
        counter.type("     ");
        ASSERT_TRUE(comesTo(folder.database(), R"("count":5,"target":33)"));
    }
    const auto store = *KestCore::StateStore::open(folder.database());
    EXPECT_EQ(store.state().devotional.session.count, 5);
}
