// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "tests/BrowserBridge/Chromium.h"

#include "BrowserBridge/BrowserBridge.h"
#include "tests/BrowserBridge/PageServer.h"
#include "tests/EndToEnd/Program.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <thread>

namespace BrowserBridgeTests
{

using BrowserBridge::Bridge;
using KestCore::BrowserPlayback;
using Action = KestCore::BrowserPlaybackScript::Action;
using Kind = Action::Kind;
using testing::HasSubstr;

namespace
{

// One browser and one server for all tests that one run of the program does.
class ChromiumTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        if (Chromium::isInstalled()) {
            theServer = std::make_unique<PageServer>();
            theBrowser = std::make_unique<Chromium>();
        }
    }
    static void TearDownTestSuite()
    {
        theBrowser.reset();
        theServer.reset();
    }
    void SetUp() override
    {
        if (!Chromium::isInstalled()) {
            GTEST_SKIP() << "chromium is not installed: nothing of the bridge was tested";
        }
    }

    static Chromium &browser() { return *theBrowser; }
    static std::string urlOf(const std::string &path, const std::string &host = "127.0.0.1")
    {
        return fmt::format("https://{}:{}{}", host, theServer->port(), path);
    }
    static std::string open(const std::string &script, const std::string &title = "A page",
                            const std::string &body = "")
    {
        return browser().openTab(urlOf(theServer->add(title, body, script)));
    }
    static std::string openOn(const std::string &host, const std::string &body)
    {
        return browser().openTab(
            urlOf(theServer->add("Site", body, "await addAudio(5)"), host));
    }
    // Each on a bridge of its own, as the commands do it.
    static Base::Result<std::optional<BrowserPlayback>> tryTo(const std::string &tab,
                                                              const Action &action = {})
    {
        KEST_TRY(auto bridge, Bridge::open(browser().port()));
        return bridge.run(tab, action);
    }
    static BrowserPlayback run(const std::string &tab, const Action &action = {})
    {
        return tryTo(tab, action).value().value();
    }
    static std::string evaluate(const std::string &tab, const std::string &expression)
    {
        auto bridge = Bridge::open(browser().port());
        return bridge.value().evaluate(tab, expression).value();
    }
    static std::string failureOf(const std::string &tab, const Action &action = {})
    {
        const auto playback = tryTo(tab, action);
        return playback ? "none" : playback.error().message;
    }
    static std::string server(const std::string &title, const std::string &script)
    {
        return urlOf(theServer->add(title, "", script));
    }

private:
    static inline std::unique_ptr<PageServer> theServer{};
    static inline std::unique_ptr<Chromium> theBrowser{};
};

constexpr const char *kButtons =
    "<button class=ytp-next-button onclick='++window.nexts'>n</button>"
    "<button class=ytp-prev-button onclick='++window.previouses'>p</button>"
    "<script>window.nexts = window.previouses = 0</script>";

} // namespace

TEST_F(ChromiumTest, FindsNoMediumWhereThereIsNone)
{
    const std::string empty = open("");
    const std::string unready = open("document.body.append(document.createElement('audio'))");
    for (const Kind kind :
         {Kind::read, Kind::seek, Kind::volume, Kind::playPause, Kind::next, Kind::previous}) {
        EXPECT_EQ(*tryTo(empty, {.kind = kind, .value = 1}), std::nullopt);
        EXPECT_EQ(*tryTo(unready, {.kind = kind, .value = 1}), std::nullopt);
    }
}

TEST_F(ChromiumTest, DoesToAMediumWhatTheActionSays)
{
    const std::string tab = open("window.a = await addAudio(20, 3);"
                                 "navigator.mediaSession.metadata = new MediaMetadata("
                                 "{title: 'A \"song\"', artist: 'Someone'})");
    BrowserPlayback expected{.title = "A \"song\"",
                             .artist = "Someone",
                             .position = 3,
                             .duration = 20,
                             .volume = 1,
                             .canSeek = true};
    EXPECT_EQ(run(tab), expected);
    struct Case {
        Kind kind;
        double value;
        double position;
        double volume;
    };
    constexpr double kEndless = std::numeric_limits<double>::infinity();
    for (const auto &[kind, value, position, volume] :
         {Case{Kind::seek, 7.25, 7.25, 1}, Case{Kind::seek, -5, 0, 1},
          Case{Kind::seek, 1e21, 20, 1}, Case{Kind::seek, 0.1 + 0.2, 0.3, 1},
          Case{Kind::seek, kEndless, 0.3, 1}, Case{Kind::seek, 5e-324, 0, 1},
          Case{Kind::volume, 0.25, 0, 0.25}, Case{Kind::volume, 1e-7, 0, 1e-7},
          Case{Kind::volume, -1, 0, 0}, Case{Kind::volume, std::nan(""), 0, 0},
          Case{Kind::volume, 2, 0, 1}, Case{Kind::next, 0, 0, 1},
          Case{Kind::previous, 0, 0, 1}}) {
        expected = run(tab, {.kind = kind, .value = value});
        EXPECT_NEAR(expected.position, position, 1e-5) << value;
        EXPECT_NEAR(expected.volume, volume, 1e-12) << value;
        EXPECT_FALSE(expected.playing || expected.canNext || expected.canPrevious);
    }
    EXPECT_TRUE(run(tab, {.kind = Kind::playPause}).playing);
    EXPECT_EQ(evaluate(tab, "String(a.paused)"), "false");
    EXPECT_FALSE(run(tab, {.kind = Kind::playPause}).playing);
    EXPECT_EQ(evaluate(tab, "String(a.paused)"), "true");
}

TEST_F(ChromiumTest, ChoosesTheMediumThatPlaysThenTheOneThatWasBegun)
{
    const std::string tab = open("window.all = [await addAudio(5), await addAudio(10, 2),"
                                 " await addAudio(15), await addAudio(20, 4)]");
    EXPECT_EQ(run(tab).duration, 10);
    EXPECT_EQ(evaluate(tab, "all[2].play(); ''"), "");
    EXPECT_EQ(run(tab).duration, 15);
    EXPECT_EQ(evaluate(tab, "all[2].remove(); all[1].remove(); all[3].remove(); ''"), "");
    EXPECT_EQ(run(tab).duration, 5);
}

TEST_F(ChromiumTest, TellsTheEndedFromThePlaying)
{
    const std::string tab = open("window.a = await addAudio(2, 1.9); window.b = await "
                                 "addAudio(3, 1); window.over = happens(a, 'ended')");
    EXPECT_EQ(evaluate(tab, "over.then(() => { window.isOver = true; }); a.play(); ''"), "");
    for (int round = 0; round < 300 && evaluate(tab, "String(window.isOver)") != "true";
         ++round) {
        std::this_thread::sleep_for(std::chrono::milliseconds{20});
    }
    ASSERT_EQ(evaluate(tab, "String(a.ended)"), "true");
    const BrowserPlayback ended = run(tab);
    EXPECT_EQ(ended.duration, 2);
    EXPECT_NEAR(ended.position, 2, 0.01);
    EXPECT_FALSE(ended.playing);
    EXPECT_EQ(evaluate(tab, "b.play(); ''"), "");
    EXPECT_EQ(run(tab).duration, 3);
}

TEST_F(ChromiumTest, ReadsALiveVideoThatHasNoEnd)
{
    const std::string tab = open("await addLiveVideo()", "Live");
    const BrowserPlayback live = run(tab, {.kind = Kind::seek, .value = 1000});
    EXPECT_EQ(live.title, "Live");
    EXPECT_TRUE(live.playing);
    EXPECT_EQ(live.duration, 0);
    EXPECT_FALSE(live.canSeek);
    EXPECT_LT(live.position, 1000);
}

TEST_F(ChromiumTest, SurvivesAnyTextOfAPage)
{
    const std::string tab = open("await addAudio(5)", "");
    EXPECT_EQ(run(tab).title, "Browser playback");
    const std::string smiles = "'\\u{1F4FF}'.repeat";
    for (const auto &[text, title] : std::initializer_list<std::pair<std::string, std::string>>{
             {R"('"});alert(1)//')", R"("});alert(1)//)"},
             {R"("\\\"'`${1}</script><!--")", R"(\"'`${1}</script><!--)"},
             {R"('\u0000\u2028\u202E\u0001')", std::string{"\0\u2028\u202E\x01", 8}},
             {"'x'.repeat(301)", std::string(300, 'x')},
             {"'x' + " + smiles + "(300)", "x" +
                                               [] {
                                                   std::string all;
                                                   for (int count = 0; count < 299; ++count) {
                                                       all += "\U0001F4FF";
                                                   }
                                                   return all;
                                               }()},
             {R"('\uD83D' + 'a\uDCFF')", "\uFFFDa\uFFFD"},
         }) {
        EXPECT_EQ(
            evaluate(tab, fmt::format("navigator.mediaSession.metadata = "
                                      "new MediaMetadata({{title: {0}, artist: {0}}}); ''",
                                      text)),
            "");
        const BrowserPlayback playback = run(tab);
        EXPECT_EQ(playback.title, title);
        EXPECT_EQ(playback.artist, title);
        EXPECT_EQ(evaluate(tab, "document.title = " + text + "; ''"), "");
        EXPECT_TRUE(Bridge::open(browser().port())->tabs().has_value());
    }
    EXPECT_EQ(evaluate(tab,
                       "navigator.mediaSession.metadata = new MediaMetadata("
                       "{title: '\\u0001'.repeat(300), artist: '\\u0001'.repeat(300)}); ''"),
              "");
    EXPECT_EQ(run(tab).title, std::string(300, '\1'));
}

TEST_F(ChromiumTest, RefusesWhatAHostilePageAnswers)
{
    const std::string tab = open("await addAudio(5)");
    for (const auto &[change, message] :
         std::initializer_list<std::pair<const char *, const char *>>{
             {"JSON.stringify = () => 'x'.repeat(8193); ''", "Playback response is too large."},
             {"JSON.stringify = () => '\\u0641'.repeat(4097); ''",
              "Playback response is too large."},
             {"JSON.stringify = () => '{}'; ''", "Invalid playback details."},
             {"JSON.stringify = () => 7; ''", "Invalid playback details."},
             {"JSON.stringify = () => { throw 1; }; ''", "Invalid playback details."},
             {"JSON.stringify = () => 'x'.repeat(5e6); ''",
              "The browser's answer is too large."},
             {"JSON.stringify = () => { for(;;); }; ''",
              "The browser refuses to do this in the tab."}}) {
        EXPECT_EQ(evaluate(tab, change), "");
        EXPECT_EQ(failureOf(tab), message);
    }
}

TEST_F(ChromiumTest, PressesTheButtonsOfTheSiteThatHasThem)
{
    for (const char *host : {"www.youtube.com", "youtube.com", "music.youtube.com"}) {
        const std::string tab = openOn(host, kButtons);
        const BrowserPlayback before = run(tab);
        EXPECT_TRUE(before.canNext && before.canPrevious) << host;
        EXPECT_TRUE(run(tab, {.kind = Kind::next}).canNext);
        run(tab, {.kind = Kind::next});
        run(tab, {.kind = Kind::previous});
        EXPECT_EQ(evaluate(tab, "`${nexts} ${previouses}`"), "2 1");
    }
    const std::string other = openOn("www.notyoutube.com", kButtons);
    const BrowserPlayback after = run(other, {.kind = Kind::next});
    EXPECT_FALSE(after.canNext || after.canPrevious);
    EXPECT_EQ(evaluate(other, "`${nexts} ${previouses}`"), "0 0");
}

TEST_F(ChromiumTest, LeavesAloneAButtonThatCannotBePressed)
{
    const std::string tab = openOn("www.youtube.com", kButtons);
    for (const auto &[change, canNext] : std::initializer_list<std::pair<const char *, bool>>{
             {"b.disabled = true", false},
             {"b.disabled = false", true},
             {"b.setAttribute('aria-disabled', 'true')", false},
             {"b.setAttribute('aria-disabled', 'false')", true},
             {"b.style.display = 'none'", false},
             {"b.style.display = ''", true},
             {"b.remove()", false}}) {
        EXPECT_EQ(evaluate(tab, fmt::format("{{ const b = document.querySelector("
                                            "'.ytp-next-button'); {}; }} nexts = 0; ''",
                                            change)),
                  "");
        EXPECT_EQ(run(tab, {.kind = Kind::next}).canNext, canNext) << change;
        EXPECT_EQ(evaluate(tab, "String(nexts)"), canNext ? "1" : "0") << change;
        EXPECT_TRUE(run(tab).canPrevious);
    }
}

TEST_F(ChromiumTest, SeesNoPrivateWindowAndNoClosedTab)
{
    const std::string url = server("Secret", "await addAudio(5)");
    const std::string hidden = browser().openPrivateTab(url);
    const std::string tab = open("await addAudio(5)", "Open");
    auto bridge = Bridge::open(browser().port());
    std::vector<std::string> titles;
    const auto tabs = bridge->tabs().value();
    for (const auto &seen : tabs) {
        EXPECT_NE(seen.id, hidden);
        EXPECT_TRUE(seen.url.starts_with("https://") || seen.url == "about:blank") << seen.url;
        titles.push_back(seen.title);
    }
    EXPECT_THAT(titles, testing::Contains("Open"));
    EXPECT_THAT(failureOf(hidden), HasSubstr("is not open any more"));
    browser().closeTab(tab);
    std::string failure;
    for (int round = 0; round < 300 && !failure.contains("is not open any more"); ++round) {
        std::this_thread::sleep_for(std::chrono::milliseconds{20});
        failure = failureOf(tab);
    }
    EXPECT_THAT(failure, HasSubstr("is not open any more"));
}

// The whole road: only a tab that was connected is read, and none after it was disconnected.
TEST_F(ChromiumTest, IsDrivenByTheCommands)
{
    const TemporaryFolder folder;
    ::setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent", 1);
    const std::string tab = open("await addAudio(20, 3)", "The connected one");
    const std::string port = std::to_string(browser().port());
    const auto kest = [&](std::vector<std::string> words) {
        words.insert(words.begin(), "playback");
        const Outcome outcome = runKest(folder.path(), std::move(words));
        return fmt::format("{} {}{}", outcome.status, outcome.out, outcome.err);
    };
    EXPECT_EQ(kest({"read"}),
              "1 kest: There is no session bus here, so no player can be asked.\n");
    EXPECT_THAT(kest({"tabs"}), HasSubstr("1 kest: No browser is connected: name its port"));
    EXPECT_THAT(kest({"tabs", "--port", port}), HasSubstr("The connected one"));
    EXPECT_THAT(kest({"read"}), HasSubstr("1 kest: There is no session bus"));
    EXPECT_THAT(kest({"connect", "zz", "--port", port}), HasSubstr("1 kest: No tab"));
    EXPECT_THAT(kest({"connect", tab.substr(0, 12), "--port", port, "--json"}),
                HasSubstr("0 [{\"id\":\"" + tab));
    EXPECT_THAT(kest({"tabs", "--json"}), HasSubstr("\"connected\":true"));
    EXPECT_THAT(kest({"read"}),
                HasSubstr("0:03 of 0:20, volume 100 %, in the connected tab\n"));
    EXPECT_THAT(kest({"seek", "12.5", "--json"}),
                HasSubstr("\"playing\":false,\"position\":12.5,\"duration\":20,\"volume\":1,"));
    EXPECT_THAT(kest({"volume", "2", "--json"}), HasSubstr("\"volume\":1,"));
    EXPECT_THAT(kest({"play-pause", "--json"}), HasSubstr("\"playing\":true"));
    EXPECT_EQ(evaluate(tab, "document.querySelector('audio').remove(); ''"), "");
    EXPECT_EQ(kest({"read", "--json"}), "0 null\n");
    EXPECT_THAT(kest({"next"}), HasSubstr("1 kest: There is no player, and no connected tab"));
    EXPECT_EQ(kest({"disconnect"}), "0 No tab is connected; no browser is asked.\n");
    EXPECT_THAT(kest({"read"}), HasSubstr("1 kest: There is no session bus"));
}

} // namespace BrowserBridgeTests
