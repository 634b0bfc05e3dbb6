// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "PrivateBus.h"
#include "RunningModel.h"
#include "Velvetnook/Application/App.h"
#include "Velvetnook/Platform/GlobalKeys.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QSignalSpy>

#include <gmock/gmock.h>

namespace Velvetnook
{

struct GivenKey {
    QString id;
    QVariantMap about;
};

QDBusArgument &operator<<(QDBusArgument &to, const GivenKey &key)
{
    to.beginStructure();
    to << key.id << key.about;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, GivenKey &key)
{
    from.beginStructure();
    from >> key.id >> key.about;
    from.endStructure();
    return from;
}

namespace
{

using Level = HotkeyState::Level;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// The part of a desktop that gives keys; answers each request by a signal, as one does.
class FakeDesktop : public QDBusVirtualObject
{
public:
    explicit FakeDesktop(const QDBusConnection &bus) : m_bus{bus}
    {
        qDBusRegisterMetaType<GivenKey>();
        qDBusRegisterMetaType<QList<GivenKey>>();
        m_bus.registerVirtualObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::SubPath);
        m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    uint failure = 0;      // of the question to the user; 1: they said no
    bool isAsking = false; // the user, who does not answer
    QStringList withheld;  // the targets that get no key
    QStringList asked;     // "target trigger", of the last question
    QStringList closed;    // sessions and requests
    QString session;       // the newest

    void press(const QString &inSession, const QString &target)
    {
        send(QStringLiteral("Activated"), {QVariant::fromValue(QDBusObjectPath{inSession}),
                                           target, qulonglong{7}, QVariantMap{}});
    }
    void rename(const QString &newName)
    {
        for (GivenKey &key : m_given) {
            key.about.insert(QStringLiteral("trigger_description"), newName);
        }
        send(QStringLiteral("ShortcutsChanged"),
             {QVariant::fromValue(QDBusObjectPath{session}), QVariant::fromValue(m_given)});
    }
    void takeBack()
    {
        m_bus.send(QDBusMessage::createSignal(session,
                                              QStringLiteral("org.freedesktop.portal.Session"),
                                              QStringLiteral("Closed")));
    }
    void vanish() { m_bus.unregisterService(QStringLiteral("org.freedesktop.portal.Desktop")); }
    void comeBack() { m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")); }

    QString introspect(const QString &) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &) override
    {
        const QVariantList arguments = message.arguments();
        if (message.member() == QLatin1String{"Close"}) {
            closed += message.path();
            return true;
        }
        const auto options = qdbus_cast<QVariantMap>(arguments.last());
        const QString sender = message.service().mid(1).replace(u'.', u'_');
        const QString request = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                    .arg(sender, options.value("handle_token").toString());
        const bool isSession = message.member() == QLatin1String{"CreateSession"};
        if (!isSession && message.member() != QLatin1String{"BindShortcuts"}) {
            return false;
        }
        // Ahead of the reply to the call, which is allowed and the harder case.
        auto answer = QDBusMessage::createSignal(
            request, QStringLiteral("org.freedesktop.portal.Request"),
            QStringLiteral("Response"));
        if (isSession) {
            session = QStringLiteral("/org/freedesktop/portal/desktop/session/%1/%2")
                          .arg(sender, options.value("session_handle_token").toString());
            answer << 0U << QVariantMap{{QStringLiteral("session_handle"), session}};
        } else {
            answer << failure << bind(arguments.at(1).value<QDBusArgument>());
        }
        if (isSession || !isAsking) {
            m_bus.send(answer);
        }
        m_bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath{request})));
        return true;
    }

private:
    QVariantMap bind(const QDBusArgument &wished)
    {
        asked.clear();
        m_given.clear();
        for (const GivenKey &key : qdbus_cast<QList<GivenKey>>(wished)) {
            asked += key.id + u' ' + key.about.value("preferred_trigger").toString();
            if (!withheld.contains(key.id)) {
                m_given.push_back(
                    {key.id,
                     {{QStringLiteral("trigger_description"), QStringLiteral("Super+S")}}});
            }
        }
        return {{QStringLiteral("shortcuts"), QVariant::fromValue(m_given)}};
    }
    void send(const QString &member, const QVariantList &arguments)
    {
        auto signal = QDBusMessage::createSignal(
            QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.GlobalShortcuts"), member);
        signal.setArguments(arguments);
        m_bus.send(signal);
    }

    QDBusConnection m_bus;
    QList<GivenKey> m_given;
};

// Without an X server, so that the desktop is asked.
class PortalKeysTest : public testing::Test
{
protected:
    void listen()
    {
        m_keys.emplace(m_running.model(), *m_app.palette(), m_bus.connect());
        QObject::connect(&*m_keys, &GlobalKeys::summoned,
                         [this](const QString &target) { m_summoned += target; });
    }
    HotkeyState stateOf(const char *target) const { return m_keys->stateOf(target); }
    bool becomes(const char *target, Level level)
    {
        return RunningModel::waitUntil([&] { return stateOf(target).level == level; });
    }
    void bindDock(std::int64_t keyCode)
    {
        m_running.model().changeCompanion([keyCode](KestCore::CompanionState &companion) {
            std::erase_if(companion.shortcuts,
                          [](const auto &binding) { return binding.target == "dock"; });
            companion.shortcuts.push_back({.id = "dock",
                                           .target = "dock",
                                           .keyCode = keyCode,
                                           .modifiers = {KestCore::ShortcutModifier::command}});
        });
        m_running.settle();
    }

    RunningModel m_running;
    App m_app{m_running.model()};
    PrivateBus m_bus;
    QStringList m_summoned;
    std::optional<GlobalKeys> m_keys;
};

TEST_F(PortalKeysTest, TakesTheKeysThatTheDesktopGives)
{
    FakeDesktop desktop{m_bus.connect()};
    desktop.withheld = QStringList{QStringLiteral("dock")};
    bindDock(36);
    listen();
    ASSERT_TRUE(becomes("command", Level::full));
    EXPECT_EQ(desktop.asked, (QStringList{"command CTRL+SHIFT+space", "dock LOGO+Return"}));
    EXPECT_THAT(stateOf("command").reason.toStdString(), HasSubstr("Super+S"));
    EXPECT_EQ(stateOf("dock").level, Level::degraded);
    EXPECT_THAT(stateOf("dock").reason.toStdString(), HasSubstr("kest dock toggle"));

    const QString first = desktop.session;
    desktop.rename(QStringLiteral("Super+P"));
    EXPECT_TRUE(RunningModel::waitUntil(
        [&] { return stateOf("command").reason.contains(QLatin1String{"Super+P"}); }));

    // A session takes its keys once: another key is another session.
    desktop.withheld.clear();
    bindDock(53);
    ASSERT_TRUE(becomes("dock", Level::full));
    EXPECT_EQ(desktop.asked.last(), "dock LOGO+Escape");
    EXPECT_EQ(desktop.closed, QStringList{first});

    QSignalSpy palette{m_app.palette(), &PaletteViewModel::toggleWanted};
    desktop.press(first, QStringLiteral("dock")); // of the session that is closed
    desktop.press(desktop.session, QStringLiteral("command"));
    desktop.press(desktop.session, QStringLiteral("dock"));
    EXPECT_TRUE(RunningModel::waitUntil([&] { return !m_summoned.isEmpty(); }));
    EXPECT_EQ(m_summoned, QStringList{"dock"});
    EXPECT_EQ(palette.count(), 1);

    desktop.takeBack();
    EXPECT_TRUE(becomes("dock", Level::degraded));
}

TEST_F(PortalKeysTest, LeavesNoQuestionOpenWhenItAsksAnother)
{
    FakeDesktop desktop{m_bus.connect()};
    desktop.isAsking = true; // the user has not answered yet
    listen();
    ASSERT_TRUE(RunningModel::waitUntil([&] { return !desktop.asked.isEmpty(); }));
    const QString first = desktop.session;
    bindDock(36);
    ASSERT_TRUE(RunningModel::waitUntil([&] { return desktop.asked.size() == 2; }));
    ASSERT_EQ(desktop.closed.size(), 2);
    EXPECT_TRUE(desktop.closed.first().contains(QLatin1String{"/request/"}));
    EXPECT_EQ(desktop.closed.last(), first);
}

TEST_F(PortalKeysTest, SaysWhatIsInTheWayAndNamesTheWayRound)
{
    listen();
    ASSERT_TRUE(becomes("command", Level::degraded)); // no desktop
    EXPECT_THAT(stateOf("command").reason.toStdString(), HasSubstr("kest palette toggle"));

    FakeDesktop desktop{m_bus.connect()}; // starts later than we
    ASSERT_TRUE(becomes("command", Level::full));
    desktop.vanish();
    ASSERT_TRUE(becomes("command", Level::degraded));
    desktop.failure = 1;
    desktop.comeBack();
    EXPECT_TRUE(RunningModel::waitUntil([&] {
        return stateOf("command").reason.contains(
            QLatin1String{"did not give Ctrl+Shift+Space"});
    })) << qPrintable(stateOf("command").reason);
}

} // namespace

} // namespace Velvetnook
