// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "HttpTransport/HttpTransport.h"
#include "Velvetnook/Application/ViewModels/Settings/UpdateSettings.h"
#include "tests/FeedScript.h"
#include "tests/Velvetnook/RunningModel.h"
#include "tests/WebServer.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

using namespace Velvetnook;

namespace
{

constexpr Base::Seconds kDay{86'400};

// A server on this computer, a pair of keys made for the test, and feeds signed by the script
// that signs those of a release.
class UpdatesTest : public testing::Test
{
protected:
    UpdatesTest()
    {
        m_source.build.publicKey = m_script.keys("key.pem");
        m_source.build.address = m_server.url("/updates");
    }

    void offer(const std::string &version, const std::string &key = "key.pem")
    {
        m_server.on(
            "/updates/stable.feed",
            {.body = m_script.run(fmt::format("feed {} {} stable https://example.org/v.deb "
                                              "package notes 2025-11-14T00:00:00Z",
                                              key, version))});
    }
    void open(bool isPackaged = false)
    {
        m_source.isPackaged = isPackaged;
        m_updates = std::make_unique<UpdateSettings>(m_running.model(), m_running.formatting(),
                                                     m_source);
    }
    void allow()
    {
        m_updates->setAllowed(true);
        m_running.settle();
    }
    // Whether so many requests have come, and what the last brought is kept.
    bool isAnswered(std::size_t count)
    {
        const bool isDone = RunningModel::waitUntil(
            [&] { return requests() == count && !m_updates->isBusy(); });
        m_running.settle();
        return isDone;
    }
    std::size_t requests() const { return m_server.requests().size(); }

    FeedScript m_script{"New beads"};
    WebServer m_server;
    UpdateSource m_source{
        .build = {.version = "1.2.0", .channel = KestCore::UpdateChannel::stable},
        .openTransport = [] { return Web::openTransport(); }};
    // The library that encrypts gives back only on the main thread what it began on.
    const decltype(Web::openTransport()) m_firstTransport = Web::openTransport();
    RunningModel m_running;
    std::unique_ptr<UpdateSettings> m_updates;
};

TEST_F(UpdatesTest, AsksNobodyBeforeItIsAllowedAndOnceADayAfterThat)
{
    offer("1.3.0");
    open();
    EXPECT_FALSE(m_updates->canAsk());
    m_updates->ask();
    m_running.pass(2 * kDay);
    EXPECT_EQ(requests(), 0U);

    open();
    allow();
    m_updates->ask();
    ASSERT_TRUE(isAnswered(1));
    EXPECT_EQ(m_updates->version(), "1.3.0");
    EXPECT_EQ(m_updates->notes(), "New beads");
    EXPECT_EQ(m_updates->address(), "https://example.org/v.deb");
    EXPECT_FALSE(m_updates->canAsk()); // until tomorrow
    m_updates->ask();
    m_running.pass(Base::Seconds{3600});
    EXPECT_TRUE(isAnswered(1));
    m_running.pass(kDay); // by itself
    EXPECT_TRUE(isAnswered(2));
    open(); // as after a start: what is known is still known, and verified again
    EXPECT_EQ(m_updates->version(), "1.3.0");
}

TEST_F(UpdatesTest, KeepsWhatIsKnownWhenAnAnswerIsNotGenuineOrDoesNotCome)
{
    offer("1.3.0");
    open();
    allow();
    m_updates->ask();
    ASSERT_TRUE(isAnswered(1));
    m_script.keys("other.pem");
    offer("6.6.6", "other.pem");
    for (const std::size_t count : {2U, 3U}) {
        m_running.pass(kDay);
        ASSERT_TRUE(isAnswered(count));
        EXPECT_TRUE(m_updates->isRefused());
        EXPECT_EQ(m_updates->version(), "1.3.0");
        m_server.on("/updates/stable.feed", {.status = 500});
    }
    // A server that is down is not asked again the same day.
    m_running.pass(Base::Seconds{3600});
    EXPECT_TRUE(isAnswered(3));
}

TEST_F(UpdatesTest, LeavesAPackagedProgramToThePackageManager)
{
    offer("1.3.0");
    open(true);
    allow();
    EXPECT_FALSE(m_updates->isPossible());
    EXPECT_TRUE(m_updates->note().contains(u"package manager"));
    m_updates->ask();
    m_running.pass(2 * kDay);
    EXPECT_EQ(requests(), 0U);
}

} // namespace
