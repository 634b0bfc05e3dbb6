// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/SessionProbe.h"

#include "Velvetnook/Platform/Linux/BusCall.h"
#include "Velvetnook/Platform/Linux/PulseSounds.h"
#include "Velvetnook/Platform/Linux/XServer.h"

namespace Velvetnook
{

namespace
{

const QString kBus = QStringLiteral("org.freedesktop.DBus");
const QString kNotifications = QStringLiteral("org.freedesktop.Notifications");
const QString kTray = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString kSecrets = QStringLiteral("org.freedesktop.secrets");
const QString kPortal = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kLogin = QStringLiteral("org.freedesktop.login1");

} // namespace

QString sessionType()
{
    const QString said = qEnvironmentVariable("XDG_SESSION_TYPE");
    return said.isEmpty() && qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
               ? QStringLiteral("wayland")
               : said;
}

SessionProbe::SessionProbe(QDBusConnection session, QDBusConnection system, QObject *parent)
    : QObject{parent}, m_session{std::move(session)}, m_system{std::move(system)}
{
}

void SessionProbe::begin()
{
    if (m_open > 0) {
        return;
    }
    m_next = {};
    m_next.sessionType = sessionType();
    m_next.desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP");
    m_next.soundServer = PulseSounds::server();
    m_next.hasSessionBus = m_session.isConnected();
    askXServer(m_next);
    beginOne(); // holds the end back until all is asked
    askNames(m_session, QStringLiteral("ListNames"), &SessionProbe::takeRunning);
    askNames(m_session, QStringLiteral("ListActivatableNames"), &SessionProbe::takeStartable);
    askNames(m_system, QStringLiteral("ListNames"), &SessionProbe::takeSystem);
    QMetaObject::invokeMethod(this, &SessionProbe::endOne, Qt::QueuedConnection);
}

void SessionProbe::askNames(const QDBusConnection &bus, const QString &method,
                            void (SessionProbe::*take)(const QStringList &))
{
    if (!bus.isConnected()) {
        return;
    }
    beginOne();
    askBus<QDBusPendingReply<QStringList>>(
        bus,
        QDBusMessage::createMethodCall(kBus, QStringLiteral("/org/freedesktop/DBus"), kBus,
                                       method),
        this, [this, take](const QDBusPendingReply<QStringList> &reply) {
            if (!reply.isError()) {
                (this->*take)(reply.value());
            }
            endOne();
        });
}

// What could be started counts as being there, except for a tray: that shows or does not.
void SessionProbe::takeStartable(const QStringList &names)
{
    m_next.hasNotifications = m_next.hasNotifications || names.contains(kNotifications);
    m_next.hasSecrets = m_next.hasSecrets || names.contains(kSecrets);
    m_next.hasSettingsPortal = m_next.hasSettingsPortal || names.contains(kPortal);
}

void SessionProbe::takeRunning(const QStringList &names)
{
    takeStartable(names);
    m_next.hasTrayWatcher = names.contains(kTray);
    if (m_next.hasTrayWatcher) {
        askTray();
    }
    if (names.contains(kNotifications)) {
        askNotifications();
    }
}

void SessionProbe::takeSystem(const QStringList &names)
{
    m_next.hasLogin = names.contains(kLogin);
}

void SessionProbe::askTray()
{
    auto call = QDBusMessage::createMethodCall(
        kTray, QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << kTray << QStringLiteral("IsStatusNotifierHostRegistered");
    beginOne();
    askBus<QDBusPendingReply<QDBusVariant>>(
        m_session, call, this, [this](const QDBusPendingReply<QDBusVariant> &reply) {
            m_next.hasTrayHost = !reply.isError() && reply.value().variant().toBool();
            endOne();
        });
}

void SessionProbe::askNotifications()
{
    beginOne();
    askBus<QDBusPendingReply<QStringList>>(
        m_session,
        QDBusMessage::createMethodCall(kNotifications,
                                       QStringLiteral("/org/freedesktop/Notifications"),
                                       kNotifications, QStringLiteral("GetCapabilities")),
        this, [this](const QDBusPendingReply<QStringList> &reply) {
            m_next.hasNotifications = !reply.isError();
            m_next.notificationAbilities = reply.isError() ? QStringList{} : reply.value();
            endOne();
        });
}

void SessionProbe::endOne()
{
    if (--m_open == 0) {
        m_facts = m_next;
        emit done();
    }
}

} // namespace Velvetnook
