// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "RunningModel.h"
#include "Velvetnook/Application/ViewModels/Monitor/MixerRows.h"
#include "Velvetnook/Application/ViewModels/OverlayViewModel.h"
#include "Velvetnook/Platform/Linux/KernelLights.h"
#include "Velvetnook/Platform/Linux/PulseServer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <cmath>

namespace
{

using Velvetnook::AudioStream;
using Velvetnook::OverlayViewModel;
using Velvetnook::SoundServer;
using Velvetnook::SystemVolume;

class Loudness : public SoundServer
{
public:
    QString problem() const override { return {}; }
    std::optional<SystemVolume> volume() const override { return now; }
    std::vector<AudioStream> streams() const override { return {}; }
    void setLevel(std::uint32_t, double) override {}
    void setMuted(std::uint32_t, bool) override {}

    void become(std::optional<SystemVolume> volume)
    {
        now = volume;
        emit volumeChanged();
    }
    std::optional<SystemVolume> now{};
};

class Overlay : public RunningModel
{
public:
    explicit Overlay(bool isOn = true)
        : RunningModel{[isOn](KestCore::NativeState &state) {
              state.settings["overlay.enabled"] = isOn ? "true" : "false";
          }},
          view{model(), formatting()}
    {
        view.begin([this] {
            ++made;
            return Velvetnook::LevelSources{.sound = sound, .lights = {}};
        });
    }

    std::shared_ptr<Loudness> sound = std::make_shared<Loudness>();
    int made = 0;
    OverlayViewModel view;
};

TEST(Overlay, ShowsOnlyWhatAKeyCanHaveChanged)
{
    struct Case {
        const char *name;
        std::optional<SystemVolume> before;
        std::optional<SystemVolume> after;
        const char *text; // empty: nothing is shown
    };
    const SystemVolume half{.level = 0.5, .device = 1};
    for (const auto &[name, before, after, text] : {
             Case{"the first that is told", std::nullopt, half, ""},
             Case{"louder", half, SystemVolume{.level = 0.55, .device = 1}, "55%"},
             Case{"muted", half, SystemVolume{.level = 0.5, .isMuted = true, .device = 1},
                  "Muted"},
             Case{"the same once more", half, half, ""},
             Case{"of a headset that was plugged in", half,
                  SystemVolume{.level = 0.9, .device = 2}, ""},
             Case{"the server went away", half, std::nullopt, ""},
         }) {
        SCOPED_TRACE(name);
        Overlay app;
        app.sound->become(before);
        app.sound->become(after);
        EXPECT_EQ(app.view.isShown(), *text != '\0');
        if (app.view.isShown()) {
            EXPECT_EQ(app.view.text().toStdString(), text);
        }
    }
}

TEST(Overlay, GoesByItselfAfterTheLastKeyAndIsNothingWhileItIsOff)
{
    Overlay app;
    app.sound->become(SystemVolume{.level = 0.5});
    app.sound->become(SystemVolume{.level = 0.6});
    app.pass(Base::Seconds{1});
    app.view.show(OverlayViewModel::Kind::screen, 0.4); // takes its place
    EXPECT_EQ(app.view.icon(), QStringLiteral("bright"));
    app.pass(Base::Seconds{1});
    EXPECT_TRUE(app.view.isShown());
    app.pass(Base::Seconds{0.3});
    EXPECT_FALSE(app.view.isShown());
    app.change(
        [](KestCore::NativeState &state) { state.settings["overlay.enabled"] = "false"; });
    app.sound->become(SystemVolume{.level = 0.7}); // the mixer asks it still
    EXPECT_FALSE(app.view.isShown());
    EXPECT_EQ(Overlay{false}.made, 0);
}

class Lights
{
public:
    Lights()
    {
        put("class/backlight/panel/max_brightness", "200\n");
        put("class/backlight/panel/brightness", "100\n");
        put("class/backlight/panel/actual_brightness", "100\n");
        put("class/backlight/broken/max_brightness", "0\n");
        put("class/backlight/broken/brightness", "7\n");
        put("class/leds/tpacpi::kbd_backlight/max_brightness", "2\n");
        put("class/leds/tpacpi::kbd_backlight/brightness", "0\n");
        put("class/leds/caps/max_brightness", "1\n");
        put("class/leds/caps/brightness", "0\n");
    }
    void put(const QString &name, const char *text) const
    {
        const QString path = root() + u'/' + name;
        QDir{}.mkpath(path.section(u'/', 0, -2));
        QFile file{path};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    QString root() const { return QString::fromStdString(m_folder.path().string()); }

private:
    TemporaryFolder m_folder;
};

TEST(KernelLights, TellWhatIsWrittenToThoseThatHaveSteps)
{
    const RunningModel qt; // the loop that tells of files
    const Lights files;
    const Velvetnook::KernelLights lights{files.root()};
    QSignalSpy screen{&lights, &Velvetnook::LightWatch::screenChanged};
    QSignalSpy keyboard{&lights, &Velvetnook::LightWatch::keyboardChanged};
    files.put("class/backlight/broken/brightness", "9\n");
    files.put("class/leds/caps/brightness", "1\n");
    files.put("class/backlight/panel/brightness", "150\n");
    ASSERT_TRUE(RunningModel::waitUntil([&] { return screen.count() > 0; }));
    EXPECT_EQ(screen.last().at(0).toDouble(), 0.75);
    files.put("class/leds/tpacpi::kbd_backlight/brightness", "1\n");
    ASSERT_TRUE(RunningModel::waitUntil([&] { return keyboard.count() > 0; }));
    EXPECT_EQ(keyboard.last().at(0).toDouble(), 0.5);
    EXPECT_LE(screen.count(), 2) << "a write may first empty the file";
}

// A sound server of the test's own, without a card.
class PulseDaemon
{
public:
    PulseDaemon()
    {
        qputenv("PULSE_SERVER", "unix:" + socket().toUtf8());
        qputenv("XDG_RUNTIME_DIR", m_folder.path().string().c_str());
    }
    ~PulseDaemon() { stop(); }
    PulseDaemon(const PulseDaemon &) = delete;
    PulseDaemon &operator=(const PulseDaemon &) = delete;

    bool start()
    {
        m_daemon.start(QStringLiteral("pulseaudio"),
                       {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
                        QStringLiteral("--exit-idle-time=-1"),
                        QStringLiteral("--use-pid-file=no"), QStringLiteral("-L"),
                        QStringLiteral("module-null-sink sink_name=test"), QStringLiteral("-L"),
                        QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=%1")
                            .arg(socket())});
        return m_daemon.waitForStarted() &&
               RunningModel::waitUntil([this] { return QFile::exists(socket()); });
    }
    void stop()
    {
        if (m_daemon.state() != QProcess::NotRunning) {
            m_daemon.terminate();
            m_daemon.waitForFinished();
        }
        QFile::remove(socket());
    }
    QString socket() const
    {
        return QString::fromStdString((m_folder.path() / "sound.socket").string());
    }
    static int control(const QStringList &arguments)
    {
        return QProcess::execute(QStringLiteral("pactl"), arguments);
    }

private:
    TemporaryFolder m_folder;
    QProcess m_daemon;
};

TEST(PulseServer, FollowsVolumesAndAServerThatComesBack)
{
    const RunningModel qt;
    PulseDaemon daemon;
    Velvetnook::PulseServer server;
    EXPECT_TRUE(server.problem().isEmpty()) << "nobody has answered yet";
    EXPECT_TRUE(qt.waitUntil([&] { return !server.problem().isEmpty(); }));
    ASSERT_TRUE(daemon.start());
    ASSERT_TRUE(qt.waitUntil([&] { return server.volume().has_value(); }));
    EXPECT_TRUE(server.problem().isEmpty());

    const auto isLoud = [&](double level) {
        const auto volume = server.volume();
        return volume && std::abs(volume->level - level) < 0.01;
    };
    ASSERT_EQ(PulseDaemon::control({QStringLiteral("set-sink-volume"), QStringLiteral("test"),
                                    QStringLiteral("30%")}),
              0);
    EXPECT_TRUE(qt.waitUntil([&] { return isLoud(0.3); }));
    PulseDaemon::control(
        {QStringLiteral("set-sink-mute"), QStringLiteral("test"), QStringLiteral("1")});
    EXPECT_TRUE(qt.waitUntil([&] { return server.volume() && server.volume()->isMuted; }));

    daemon.stop();
    EXPECT_TRUE(qt.waitUntil([&] { return !server.volume(); }));
    ASSERT_TRUE(daemon.start());
    EXPECT_TRUE(qt.waitUntil([&] { return server.volume().has_value(); }));
}

TEST(PulseServer, MakesOneApplicationQuieter)
{
    RunningModel qt;
    PulseDaemon daemon;
    ASSERT_TRUE(daemon.start());
    QProcess player;
    player.setStandardInputFile(QStringLiteral("/dev/zero"));
    player.start(QStringLiteral("pacat"),
                 {QStringLiteral("--client-name=Test player"), QStringLiteral("--raw")});
    ASSERT_TRUE(player.waitForStarted());
    Velvetnook::MixerRows rows{qt.formatting()};
    rows.begin([] { return std::make_shared<Velvetnook::PulseServer>(); });
    rows.setWatched(true);
    ASSERT_TRUE(qt.waitUntil([&] { return rows.rowCount() == 1; }));
    const auto read = [&](const char *role) {
        return rows.data(rows.index(0), rows.roleNames().key(role));
    };
    EXPECT_EQ(read("title").toString(), QStringLiteral("Test player"));
    rows.setLevel(0, 0.25);
    EXPECT_TRUE(qt.waitUntil([&] { return std::abs(read("level").toDouble() - 0.25) < 0.01; }));
    rows.setLevel(0, 0);
    EXPECT_TRUE(qt.waitUntil([&] { return read("level").toDouble() == 0; }));
    rows.setLevel(0, 0.5); // out of silence too
    EXPECT_TRUE(qt.waitUntil([&] { return std::abs(read("level").toDouble() - 0.5) < 0.01; }));
    rows.setMuted(0, true);
    EXPECT_TRUE(qt.waitUntil([&] { return read("isMuted").toBool(); }));
    player.terminate();
    player.waitForFinished();
    EXPECT_TRUE(qt.waitUntil([&] { return rows.availability() == QLatin1String{"empty"}; }));
    rows.setWatched(false);
}

} // namespace
