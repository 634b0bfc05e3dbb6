// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clients/UpdateClient.h"

#include "HttpTransport/HttpTransport.h"
#include "tests/FeedScript.h"
#include "tests/WebServer.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <fstream>

using namespace KestCore;
using testing::HasSubstr;

namespace
{

const Base::Instant kNow = Base::fromIso8601("2026-11-21T12:00:00Z").value();

// The server, its keys and a build that trusts them; feeds are made by our own script.
class Updates : public testing::Test
{
protected:
    Updates()
    {
        m_build.publicKey = m_script.keys("key.pem");
        m_build.address = m_server.url("/updates");
    }

    std::string feed(const std::string &version, const std::string &published,
                     const std::string &key = "key.pem", const char *channel = "stable",
                     const char *address = "https://example.org/velvetnook.deb") const
    {
        return m_script.run(fmt::format("feed {} {} {} {} package notes {}", key, version,
                                        channel, address, published));
    }
    // The message of the failure; empty when it was taken.
    std::string check(const std::string &body, Base::Instant now = kNow)
    {
        m_server.on("/updates/stable.feed", {.body = body});
        const auto outcome = checkForUpdate(*m_transport, m_build, m_settings, now);
        return outcome ? "" : outcome.error().message;
    }
    std::string offered() const
    {
        const auto known = knownUpdate(m_build, m_settings);
        return known.offer ? known.offer->version : "";
    }

    FeedScript m_script{"New \"beads\"\nfor your counter"};
    TemporaryFolder m_folder;
    WebServer m_server;
    std::unique_ptr<Base::HttpTransport> m_transport = Web::openTransport().value();
    UpdateBuild m_build{.version = "1.2.0", .channel = UpdateChannel::stable};
    Settings m_settings{{"update.allowed", "true"}};
};

} // namespace

TEST(SemanticVersion, OrdersCandidatesBeforeTheVersion)
{
    const char *const kInOrder[] = {"0.9.9", "1.0.0-rc.1", "1.0.0-rc.2", "1.0.0-rc.10",
                                    "1.0.0", "1.0.1-rc.0", "1.0.1",      "1.10.0"};
    for (std::size_t at = 1; at < std::size(kInOrder); ++at) {
        EXPECT_LT(semanticVersion(kInOrder[at - 1]).value(),
                  semanticVersion(kInOrder[at]).value())
            << kInOrder[at];
    }
    for (const char *none :
         {"", "1", "1.0", "1.0.0.0", "v1.0.0", "01.0.0", "1.0.0-rc", "1.-0.0", "1.0.0-rc.",
          "1.0.0-rc.01", "1.0.0-beta.1", "+1.0.0", "1.0.4294967296", "1.0.0 "}) {
        EXPECT_FALSE(semanticVersion(none)) << none;
    }
}

TEST_F(Updates, OfferOnlyWhatIsNewer)
{
    EXPECT_EQ(check(feed("1.3.0", "2026-11-20T00:00:00Z")), "");
    EXPECT_EQ(offered(), "1.3.0");
    const auto offer = knownUpdate(m_build, m_settings).offer.value();
    EXPECT_EQ(offer.notes, "New \"beads\"\nfor your counter");
    EXPECT_EQ(offer.size, 10);
    EXPECT_EQ(offer.sha256, "84d89877f0d4041efb6bf91a16f0248f2fd573e6af05c19f96bedb9f882f7882");
    EXPECT_EQ(check(feed("1.2.0", "2026-11-20T01:00:00Z")), "");
    EXPECT_EQ(offered(), "");
    EXPECT_EQ(check(feed("1.2.0-rc.9", "2026-11-20T02:00:00Z")), "");
    EXPECT_EQ(offered(), "");
}

TEST_F(Updates, RefuseWhatIsNotGenuineAndKeepWhatWasKnown)
{
    ASSERT_EQ(check(feed("1.3.0", "2026-11-20T00:00:00Z")), "");
    m_script.keys("other.pem");
    const std::string good = feed("1.4.0", "2026-11-20T01:00:00Z");
    std::string changed = good;
    changed.replace(changed.find("1.4.0"), 5, "1.5.0");
    struct Case {
        const char *name;
        std::string body;
        const char *message;
    };
    for (const auto &[name, body, message] : {
             Case{"another's key", feed("1.4.0", "2026-11-20T01:00:00Z", "other.pem"),
                  "signature"},
             Case{"changed", changed, "signature"},
             Case{"more behind it", good + " ", "signature"},
             Case{"no signature", good.substr(good.find('\n')), "signature"},
             Case{"nothing", "", "no signed feed"},
             Case{"huge", good + std::string(kLargestFeed, ' '), "did not answer"},
             Case{"older", feed("1.4.0", "2026-11-19T00:00:00Z"), "older"},
             Case{"of the future", feed("1.4.0", "2027-11-19T00:00:00Z"), "not meant"},
             Case{"of candidates",
                  feed("1.4.0", "2026-11-20T01:00:00Z", "key.pem", "candidate"), "not meant"},
             Case{"in the clear",
                  feed("1.4.0", "2026-11-20T01:00:00Z", "key.pem", "stable", "http://a.org/x"),
                  "must not"},
             Case{"no version", feed("1.4", "2026-11-20T01:00:00Z"), "must not"},
         }) {
        SCOPED_TRACE(name);
        EXPECT_THAT(check(body), HasSubstr(message));
        EXPECT_EQ(offered(), "1.3.0");
    }
    // What was tampered with on this machine is worth nothing either.
    m_settings["update.feed"] += " ";
    EXPECT_EQ(offered(), "");
}

TEST_F(Updates, AskOnceADayWhateverCameOfIt)
{
    EXPECT_TRUE(isCheckDue(m_settings, kNow));
    EXPECT_THAT(check("nonsense"), HasSubstr("no signed feed"));
    EXPECT_FALSE(isCheckDue(m_settings, kNow + Base::Seconds{86'399}));
    EXPECT_TRUE(isCheckDue(m_settings, kNow + Base::Seconds{86'400}));
    EXPECT_TRUE(isCheckDue(m_settings, kNow - Base::Seconds{1})); // the clock was set back
}

TEST_F(Updates, AskNobodyUnlessAllBuildMachineAndUserAllowIt)
{
    const auto why = [&](bool isPackaged = false) {
        const auto outcome = mayCheck(m_build, m_settings, isPackaged);
        return outcome ? "" : outcome.error().message;
    };
    EXPECT_EQ(why(), "");
    EXPECT_THAT(why(true), HasSubstr("package manager"));
    m_settings["update.allowed"] = "yes";
    EXPECT_THAT(why(), HasSubstr("is off"));
    m_settings["update.allowed"] = "true";
    m_build.publicKey.clear();
    EXPECT_THAT(why(), HasSubstr("no updates"));
    m_build.channel = UpdateChannel::development;
    EXPECT_THAT(why(), HasSubstr("development"));
    EXPECT_EQ(channelOf("app.kest.native"), UpdateChannel::stable);
    EXPECT_EQ(channelOf("app.kest.native.rc"), UpdateChannel::candidate);
    EXPECT_EQ(channelOf("app.kest.native.rc2"), UpdateChannel::development);

    std::ofstream{m_folder.path() / "velvetnook.list"} << "/usr/bin\n/usr/bin/kest\n";
    EXPECT_TRUE(isPackaged("/usr/bin/kest", m_folder.path()));
    EXPECT_FALSE(isPackaged("/usr/local/bin/kest", m_folder.path()));
    EXPECT_FALSE(isPackaged("/usr/bin/kest", m_folder.path() / "none"));
    // Or a mark, whichever way the package went.
    const auto share = m_folder.path() / "share/velvetnook";
    EXPECT_FALSE(isPackaged(m_folder.path() / "bin/kest", share));
    std::filesystem::create_directories(share);
    std::ofstream{share / "packaged"} << "yes";
    EXPECT_TRUE(isPackaged(m_folder.path() / "bin/kest", share));
}
