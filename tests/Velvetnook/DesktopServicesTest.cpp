// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "PrivateBus.h"
#include "Velvetnook/Platform/Linux/AutostartFile.h"
#include "Velvetnook/Platform/Linux/BusActivation.h"
#include "Velvetnook/Platform/Linux/LoginPower.h"
#include "Velvetnook/Platform/Linux/PortalLook.h"
#include "Velvetnook/Platform/Linux/PulseSounds.h"
#include "tests/TemporaryFolder.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QSignalSpy>

#include <gmock/gmock.h>

#include <sys/stat.h>

#include <fstream>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;
using testing::HasSubstr;

const QString kName = QStringLiteral("app.kest.native");

std::vector<QString> actionsOf(const QSignalSpy &wanted)
{
    std::vector<QString> actions;
    for (const QVariantList &call : wanted) {
        actions.push_back(call.first().toString());
    }
    return actions;
}

TEST(Activation, ASecondStartBringsTheFirstForwardAndNothingIsLostOnTheWay)
{
    PrivateBus bus;
    BusActivation first{bus.connect(), kName};
    QSignalSpy wanted{&first, &Activation::actionWanted};
    ASSERT_EQ(first.claim({}), Activation::Start::first);

    BusActivation second{bus.connect(), kName};
    EXPECT_EQ(second.claim({.isQuiet = true}), Activation::Start::second);
    qputenv("XDG_ACTIVATION_TOKEN", "a-token");
    EXPECT_EQ(second.claim({}), Activation::Start::second);
    qunsetenv("XDG_ACTIVATION_TOKEN");
    EXPECT_EQ(first.token(), QStringLiteral("a-token"));
    EXPECT_TRUE(wanted.isEmpty()) << "the first is still starting";
    first.begin();
    EXPECT_EQ(second.claim({.action = QStringLiteral("palette")}), Activation::Start::second);
    EXPECT_EQ(actionsOf(wanted),
              (std::vector<QString>{QStringLiteral("open"), QStringLiteral("palette")}));
}

TEST(Activation, WhatIsNoActionIsNotPassedOn)
{
    PrivateBus bus;
    BusActivation first{bus.connect(), kName};
    QSignalSpy wanted{&first, &Activation::actionWanted};
    first.claim({});
    first.begin();
    const auto stranger = bus.connect();
    for (const char *action : {"erase", "", "Open", "quit"}) {
        auto call = QDBusMessage::createMethodCall(
            kName, QStringLiteral("/app/kest/native"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        call << QString::fromLatin1(action) << QVariantList{} << QVariantMap{};
        stranger.asyncCall(call);
    }
    EXPECT_TRUE(eventually([&] { return !wanted.isEmpty(); }));
    EXPECT_EQ(actionsOf(wanted), std::vector<QString>{QStringLiteral("quit")});
}

TEST(Activation, TheNameIsFreeAgainWhenTheFirstEnds)
{
    PrivateBus bus;
    const auto dying = bus.connect();
    {
        BusActivation first{dying, kName};
        ASSERT_EQ(first.claim({}), Activation::Start::first);
    }
    BusActivation next{bus.connect(), kName};
    EXPECT_EQ(next.claim({}), Activation::Start::first);
}

TEST(Activation, AHolderThatDoesNotAnswerIsNotWaitedForLong)
{
    PrivateBus bus;
    auto deaf = bus.connect(); // has the name, and no object behind it that would answer
    ASSERT_TRUE(deaf.registerService(kName));
    BusActivation second{bus.connect(), kName};
    second.setPatience(std::chrono::milliseconds{200});
    EXPECT_EQ(second.claim({}), Activation::Start::unanswered);
}

TEST(Activation, WithoutABusTheLockOfTheStoreDecides)
{
    BusActivation activation{noBus(), kName};
    EXPECT_EQ(activation.claim({}), Activation::Start::undecided);
}

TEST(Launch, ReadsTheCommandLine)
{
    using Wish = Launch::Wish;
    struct Case {
        std::vector<const char *> words;
        Launch wanted;
    };
    for (const auto &[words, wanted] : {
             Case{{}, {}},
             Case{{"--background"}, {.isQuiet = true}},
             Case{{"--action", "palette"}, {.action = QStringLiteral("palette")}},
             Case{{"--capabilities"}, {.wish = Wish::capabilities}},
             Case{{"--background", "--version"}, {.wish = Wish::version}},
             Case{{"--action", "erase"},
                  {.wish = Wish::misuse,
                   .problem = QStringLiteral("There is no action \"erase\"")}},
             Case{{"--action"},
                  {.wish = Wish::misuse,
                   .problem = QStringLiteral("Nobody understands \"--action\"")}},
             Case{{"file.txt"},
                  {.wish = Wish::misuse,
                   .problem = QStringLiteral("Nobody understands \"file.txt\"")}},
         }) {
        SCOPED_TRACE(words.empty() ? "nothing" : words.front());
        EXPECT_EQ(Launch::from(words), wanted);
    }
}

TEST(Autostart, WritesAFileThatStartsThisProgramAndTakesItAwayAgain)
{
    const TemporaryFolder folder;
    AutostartFile autostart{folder.path() / "config" / "autostart", "app.kest.native",
                            R"(/opt/a b/50%/$x\y/velvetnook)"};
    EXPECT_EQ(autostart.standing(), Autostart::Standing::off);
    ASSERT_TRUE(autostart.set(true));
    EXPECT_EQ(autostart.standing(), Autostart::Standing::on);
    const auto text = Base::readFile(autostart.file()).value();
    EXPECT_THAT(text, HasSubstr("\n"
                                R"(Exec="/opt/a b/50%%/\\$x\\\\y/velvetnook" --background)"
                                "\n"));
    EXPECT_THAT(text, HasSubstr("\n"
                                R"(TryExec=/opt/a b/50%/$x\\y/velvetnook)"
                                "\n"));
    struct stat first{};
    struct stat again{};
    ASSERT_EQ(stat(autostart.file().c_str(), &first), 0);
    ASSERT_TRUE(autostart.set(true));
    ASSERT_EQ(stat(autostart.file().c_str(), &again), 0);
    EXPECT_EQ(first.st_ino, again.st_ino) << "each start writes it anew";
    ASSERT_TRUE(autostart.set(false));
    EXPECT_FALSE(std::filesystem::exists(autostart.file()));
    EXPECT_TRUE(autostart.set(false)) << "there is nothing left to take away";
}

TEST(Autostart, SeesThatTheDesktopHasTurnedItOff)
{
    const TemporaryFolder folder;
    AutostartFile autostart{folder.path(), "app.kest.native", "/usr/bin/velvetnook"};
    for (const char *line : {"Hidden=true", "X-GNOME-Autostart-enabled = false"}) {
        ASSERT_TRUE(autostart.set(true));
        std::ofstream{autostart.file(), std::ios::app} << line << '\n';
        EXPECT_EQ(autostart.standing(), Autostart::Standing::turnedOff) << line;
    }
}

TEST(Autostart, AFolderThatCannotBeWrittenIsSaidInTheSystemsWords)
{
    const TemporaryFolder folder;
    std::ofstream{folder.path() / "autostart"} << "a file";
    AutostartFile autostart{folder.path() / "autostart", "app.kest.native", "/x"};
    const auto refused = autostart.set(true);
    ASSERT_FALSE(refused);
    EXPECT_THAT(refused.error().message, HasSubstr("/autostart: File exists"));
}

TEST(Autostart, LivesInTheFolderThatTheUserHasChosen)
{
    qputenv("XDG_CONFIG_HOME", "/somewhere");
    EXPECT_EQ(AutostartFile::userFolder(), "/somewhere/autostart");
    qputenv("XDG_CONFIG_HOME", "relative/is/not/allowed");
    qputenv("HOME", "/home/me");
    EXPECT_EQ(AutostartFile::userFolder(), "/home/me/.config/autostart");
    qunsetenv("XDG_CONFIG_HOME");
}

using Groups = QMap<QString, QVariantMap>;

class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(const QDBusConnection &bus) : m_bus{bus}
    {
        qDBusRegisterMetaType<Groups>();
        m_bus.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                             QDBusConnection::ExportAllSlots |
                                 QDBusConnection::ExportAllSignals);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void set(const QString &group, const QString &key, const QVariant &value)
    {
        m_groups[group].insert(key, value);
        emit SettingChanged(group, key, QDBusVariant{value});
    }

public slots:
    QMap<QString, QVariantMap> ReadAll(const QStringList &) { return m_groups; }

signals:
    void SettingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    QDBusConnection m_bus;
    Groups m_groups;
};

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QString kGnome = QStringLiteral("org.gnome.desktop.interface");

TEST(SessionLook, FollowsThePortalFromWhenItAppears)
{
    PrivateBus bus;
    PortalLook look{bus.connect()};
    QSignalSpy changed{&look, &SessionLook::changed};
    look.begin();
    ASSERT_TRUE(eventually([&] { return !changed.isEmpty(); }));
    EXPECT_EQ(look.state().availability, Availability::offline);
    EXPECT_EQ(look.look(), Look{});

    FakePortal portal{bus.connect()};
    ASSERT_TRUE(eventually([&] { return look.state().isReady(); }));
    struct Case {
        QString group;
        const char *key;
        QVariant value;
        Look wanted;
    };
    for (const auto &[group, key, value, wanted] : {
             Case{kAppearance, "color-scheme", 2U, {.isDark = false}},
             Case{kAppearance, "color-scheme", 1U, {}},
             Case{kAppearance, "color-scheme", 7U, {}},
             Case{kAppearance, "contrast", 1U, {.wantsContrast = true}},
             Case{kAppearance, "contrast", 0U, {}},
             Case{kGnome, "enable-animations", false, {.reducesMotion = true}},
             Case{kGnome, "enable-animations", true, {}},
             Case{kGnome, "color-scheme", 2U, {}},
         }) {
        SCOPED_TRACE(
            qPrintable(group + u' ' + QString::fromLatin1(key) + u' ' + value.toString()));
        changed.clear();
        portal.set(group, QString::fromLatin1(key), value);
        ASSERT_TRUE(eventually([&] { return !changed.isEmpty(); }));
        EXPECT_EQ(look.look(), wanted);
    }
}

TEST(SessionLook, ReadsWhatWasChosenBeforeTheStart)
{
    PrivateBus bus;
    FakePortal portal{bus.connect()};
    portal.set(kAppearance, QStringLiteral("color-scheme"), 2U);
    portal.set(kGnome, QStringLiteral("enable-animations"), false);
    PortalLook look{bus.connect()};
    look.begin();
    EXPECT_TRUE(eventually(
        [&] { return look.look() == Look{.isDark = false, .reducesMotion = true}; }));
}

class FakeLogin : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit FakeLogin(const QDBusConnection &bus) : m_bus{bus}
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                             QDBusConnection::ExportAllSlots |
                                 QDBusConnection::ExportAllSignals);
        m_bus.registerService(QStringLiteral("org.freedesktop.login1"));
    }

    void setLocked(bool isLocked)
    {
        auto signal = QDBusMessage::createSignal(
            QStringLiteral("/session"), QStringLiteral("org.freedesktop.DBus.Properties"),
            QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.freedesktop.login1.Session")
               << QVariantMap{{QStringLiteral("LockedHint"), isLocked}} << QStringList{};
        m_bus.send(signal);
    }

public slots:
    QDBusObjectPath GetSessionByPID(uint)
    {
        return QDBusObjectPath{QStringLiteral("/session")};
    }

signals:
    void PrepareForSleep(bool isGoingToSleep);

private:
    QDBusConnection m_bus;
};

TEST(Power, TellsOfWakingAndOfTheLockOfTheScreen)
{
    PrivateBus bus;
    FakeLogin login{bus.connect()};
    LoginPower power{bus.connect()};
    QSignalSpy resumed{&power, &Power::resumed};
    QSignalSpy locked{&power, &Power::lockedChanged};
    power.begin();
    ASSERT_TRUE(eventually([&] { return power.state().isReady(); }));
    emit login.PrepareForSleep(true);
    emit login.PrepareForSleep(false);
    login.setLocked(true);
    login.setLocked(true);
    ASSERT_TRUE(eventually([&] { return power.isLocked(); }));
    EXPECT_EQ(resumed.size(), 1);
    login.setLocked(false);
    EXPECT_TRUE(eventually([&] { return !power.isLocked(); }));
    EXPECT_EQ(locked.size(), 2);
}

TEST(Power, WithoutASystemBusSaysSo)
{
    LoginPower power{noBus()};
    power.begin();
    EXPECT_TRUE(
        eventually([&] { return power.state().availability == Availability::offline; }));
}

TEST(Sounds, WithoutAServerOneIsGivenUpAndTheNextMayTry)
{
    qputenv("PULSE_SERVER", "unix:/nonexistent/pulse");
    PulseSounds sounds;
    QSignalSpy played{&sounds, &Sounds::played};
    sounds.play(Sounds::Sound::completion);
    sounds.play(Sounds::Sound::completion); // while the first is on its way
    ASSERT_TRUE(eventually([&] { return !played.isEmpty(); }));
    EXPECT_THAT(played.first().first().toString().toStdString(),
                HasSubstr("There is no sound server in this session"));
    EXPECT_EQ(sounds.state().availability, Availability::error);
    sounds.play(Sounds::Sound::reminder);
    EXPECT_TRUE(eventually([&] { return played.size() == 2; }));
    qunsetenv("PULSE_SERVER");
}

TEST(Sounds, OursAreReadAndNothingElseIs)
{
    for (const char *name : {"completion", "reminder"}) {
        QFile file{QStringLiteral(":/velvetnook/sounds/%1.wav").arg(QLatin1String{name})};
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        const auto *data = reinterpret_cast<const std::uint8_t *>(bytes.constData());
        const auto size = static_cast<std::size_t>(bytes.size());
        const auto sound = readWave({data, size});
        ASSERT_TRUE(sound);
        EXPECT_EQ(sound->samples.size_bytes() + 44, size);
        EXPECT_EQ(sound->samples.back(), 0) << "a sound that breaks off clicks";
        for (const std::size_t kept : {std::size_t{0}, std::size_t{43}, size - 1}) {
            EXPECT_FALSE(readWave({data, kept})) << kept;
        }
        for (const int damaged : {0, 8, 20, 22, 34, 36}) {
            QByteArray other = bytes;
            other[damaged] = 9;
            EXPECT_FALSE(
                readWave({reinterpret_cast<const std::uint8_t *>(other.constData()), size}))
                << damaged;
        }
    }
}

} // namespace

} // namespace Velvetnook

#include "DesktopServicesTest.moc"
