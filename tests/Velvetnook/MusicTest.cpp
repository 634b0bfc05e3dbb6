// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "RunningModel.h"
#include "Velvetnook/Application/ToolChoice.h"
#include "Velvetnook/Application/ToolServices.h"
#include "Velvetnook/Application/ViewModels/MusicViewModel.h"
#include "Velvetnook/Platform/Linux/BusPlayers.h"

#include <QSignalSpy>
#include <QThreadPool>

#include <list>

using namespace Velvetnook;

namespace
{

void turnOn(KestCore::NativeState &state) { setToolOn(state, "music", true); }

// A bus with players of the test's own, and the view of them.
class Music
{
public:
    explicit Music(const RunningModel::Prepare &prepare = turnOn) : m_running{prepare}
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().toUtf8());
        m_view.emplace(m_running.model(), m_running.formatting(),
                       std::make_shared<const ToolServices>(
                           ToolServices{.makePlayers = [this](QObject *parent) -> Players * {
                               return new BusPlayers{m_bus.connect(), parent};
                           }}));
    }
    ~Music()
    {
        m_view.reset();
        for (QProcess &player : m_players) {
            player.kill();
            player.waitForFinished(10'000);
        }
    }
    Music(const Music &) = delete;
    Music &operator=(const Music &) = delete;

    QProcess &start(const char *name, const char *kind)
    {
        QProcess &player = m_players.emplace_back();
        player.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        player.start(QStringLiteral(KEST_PLAYER), {QLatin1String{name}, QLatin1String{kind}});
        EXPECT_TRUE(player.waitForReadyRead(10'000));
        return player;
    }
    // What another program does to a player.
    void press(const char *name, const char *method)
    {
        static_cast<void>(m_bus.connect().asyncCall(QDBusMessage::createMethodCall(
            QStringLiteral("org.mpris.MediaPlayer2.") + QLatin1String{name},
            QStringLiteral("/org/mpris/MediaPlayer2"),
            QStringLiteral("org.mpris.MediaPlayer2.Player"), QLatin1String{method})));
    }
    template <class Condition>
    bool comes(Condition condition)
    {
        return RunningModel::waitUntil(condition);
    }

    std::unique_ptr<BusPlayers> makePlayers()
    {
        return std::make_unique<BusPlayers>(m_bus.connect());
    }
    MusicViewModel &view() { return *m_view; }
    RunningModel &running() { return m_running; }

private:
    PrivateBus m_bus;
    RunningModel m_running;
    std::list<QProcess> m_players;
    std::optional<MusicViewModel> m_view;
};

} // namespace

TEST(MusicView, FollowsAPlayerThatComesPlaysAndGoes)
{
    Music music;
    EXPECT_EQ(music.view().availability(), u"empty");
    QProcess &player = music.start("sound.instance1", "sound");
    ASSERT_TRUE(music.comes([&] { return music.view().title() == u"Song 1"; }));
    EXPECT_EQ(music.view().artist(), u"One, Two");
    EXPECT_EQ(music.view().source(), u"The Test Player");
    EXPECT_EQ(music.view().positionText(), u"0:30");
    EXPECT_EQ(music.view().durationText(), u"3:20");
    EXPECT_FALSE(music.view().nowPlaying());
    music.press("sound.instance1", "PlayPause");
    ASSERT_TRUE(music.comes([&] { return music.view().isPlaying(); }));
    ASSERT_TRUE(music.view().nowPlaying());
    EXPECT_EQ(music.view().nowPlaying()->title, u"Song 1");
    player.kill();
    ASSERT_TRUE(music.comes([&] { return music.view().availability() == u"empty"; }));
    EXPECT_FALSE(music.view().nowPlaying());
}

TEST(MusicView, DrivesWhatItShows)
{
    Music music;
    music.start("sound", "sound");
    ASSERT_TRUE(music.comes([&] { return music.view().title() == u"Song 1"; }));
    music.view().playPause();
    EXPECT_TRUE(music.comes([&] { return music.view().isPlaying(); }));
    music.view().next();
    EXPECT_TRUE(music.comes([&] { return music.view().title() == u"Song 2"; }));
    music.view().seek(1e9);
    EXPECT_EQ(music.view().positionText(), u"3:20"); // no further than it goes
    for (int step = 1; step <= 40; ++step) {         // as a hand draws a slider
        music.view().setVolume(step / 50.0);
    }
    QSignalSpy changes{&music.view(), &MusicViewModel::changed};
    EXPECT_TRUE(music.comes([&] { return changes.count() >= 2; }));
    EXPECT_NEAR(music.view().volume(), 0.8, 0.001);
    music.view().toggleMute();
    EXPECT_TRUE(music.comes([&] { return music.view().volume() < 0.001; }));
    music.view().toggleMute();
    EXPECT_TRUE(music.comes([&] { return std::abs(music.view().volume() - 0.8) < 0.001; }));
}

TEST(MusicView, ShowsThePlayerThatBeganLastUnlessOneIsChosen)
{
    Music music;
    music.start("a", "sound");
    music.start("b", "sound");
    music.press("b", "Next"); // another song, so that they are no doubles
    ASSERT_TRUE(music.comes([&] { return music.view().sources().size() == 3; }));
    music.press("a", "PlayPause");
    ASSERT_TRUE(music.comes([&] { return music.view().isPlaying(); }));
    music.press("b", "PlayPause");
    EXPECT_TRUE(music.comes([&] { return music.view().title() == u"Song 2"; }));
    music.view().chooseSource(QStringLiteral("a"));
    music.running().settle();
    EXPECT_EQ(music.view().title(), u"Song 1");
    music.view().chooseSource({});
    music.running().settle();
    EXPECT_EQ(music.view().title(), u"Song 2");
}

TEST(MusicView, APlayerThatRefusesOrHangsHoldsNobodyUp)
{
    Music music;
    music.start("deaf", "deaf");
    music.start("bare", "bare");
    ASSERT_TRUE(music.comes([&] { return music.view().source() == u"bare"; }));
    QSignalSpy failures{&music.view(), &MusicViewModel::failed};
    music.view().playPause();
    ASSERT_TRUE(music.comes([&] { return failures.count() == 1; }));
    EXPECT_TRUE(failures.front().front().toString().contains(u"not today"));
    EXPECT_FALSE(music.view().canSeek());
    EXPECT_FALSE(music.view().hasVolume());
}

TEST(BusPlayers, EndAtOnceAlsoWhileAPlayerHangs)
{
    Music music;
    music.start("deaf", "deaf");
    auto players = music.makePlayers();
    players->begin();
    for (int time = 0; time < 3; ++time) { // a second each
        players->perform({.name = "deaf"}, {.kind = MediaPlayers::Action::Kind::playPause});
    }
    QSignalSpy failures{players.get(), &Players::failed};
    ASSERT_TRUE(music.comes([&] { return failures.count() == 1; })); // and two are to come
    QElapsedTimer timer;
    timer.start();
    players.reset();
    EXPECT_LT(timer.elapsed(), 300);
    EXPECT_TRUE(QThreadPool::globalInstance()->waitForDone(20'000));
    music.running().settle(); // what was on its way finds nobody
}

TEST(MusicView, NobodyIsFollowedWhileTheToolIsOff)
{
    Music music{[](KestCore::NativeState &state) { setToolOn(state, "music", false); }};
    music.start("sound", "sound");
    music.running().settle();
    EXPECT_TRUE(music.view().title().isEmpty());
    music.running().change(turnOn);
    ASSERT_TRUE(music.comes([&] { return music.view().title() == u"Song 1"; }));
    music.running().change(
        [](KestCore::NativeState &state) { setToolOn(state, "music", false); });
    EXPECT_TRUE(music.view().title().isEmpty());
}

TEST(MusicView, ATabIsReadOnlyOnceItIsConnected)
{
    struct Asked {
        std::atomic<int> count{0};
        std::atomic<bool> isGone{false};
    } asked;
    RunningModel running{turnOn};
    const auto services = std::make_shared<const ToolServices>(ToolServices{
        .browserTabs =
            [](std::uint16_t port) -> Base::Result<std::vector<BrowserBridge::BrowserTab>> {
            if (port != 9222) {
                return std::unexpected(Base::KestError::unavailable("No browser is there"));
            }
            return std::vector<BrowserBridge::BrowserTab>{{.id = "T1", .title = "Tab"}};
        },
        .playInTab = [&asked](const KestCore::ConnectedTab &tab, const auto &)
            -> Base::Result<std::optional<KestCore::BrowserPlayback>> {
            ++asked.count;
            if (asked.isGone) {
                return std::unexpected(Base::KestError::unavailable("The tab is gone"));
            }
            return KestCore::BrowserPlayback{.title = tab.tab, .playing = true, .volume = 1};
        }});
    MusicViewModel view{running.model(), running.formatting(), services};
    view.setShown(true);
    running.pass(Base::Seconds{60});
    EXPECT_EQ(asked.count, 0);
    view.tab()->look(70'000);
    EXPECT_FALSE(view.tab()->message().isEmpty());
    view.tab()->look(1);
    ASSERT_TRUE(running.waitUntil([&] { return !view.tab()->isLooking(); }));
    EXPECT_EQ(view.tab()->message(), u"No browser is there");
    view.tab()->look(9222);
    ASSERT_TRUE(running.waitUntil([&] { return view.tab()->tabs().size() == 1; }));
    EXPECT_EQ(asked.count, 0);
    view.tab()->connectTab(0);
    ASSERT_TRUE(running.waitUntil([&] { return view.title() == u"T1"; }));
    asked.isGone = true;
    view.playPause();
    ASSERT_TRUE(running.waitUntil([&] { return !view.tab()->problem().isEmpty(); }));
    EXPECT_EQ(view.availability(), u"offline"); // nobody knows whether it still plays
    EXPECT_FALSE(view.nowPlaying());
    view.tab()->disconnectTab();
    running.settle();
    EXPECT_EQ(view.availability(), u"empty");
    const int before = asked.count;
    running.pass(Base::Seconds{60});
    EXPECT_EQ(asked.count, before);
}
