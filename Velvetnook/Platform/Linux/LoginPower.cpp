// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/LoginPower.h"

#include "Velvetnook/Platform/Linux/BusCall.h"

#include <QCoreApplication>
#include <QDBusObjectPath>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;

const QString kService = QStringLiteral("org.freedesktop.login1");
const QString kPath = QStringLiteral("/org/freedesktop/login1");
const QString kManager = QStringLiteral("org.freedesktop.login1.Manager");
const QString kSession = QStringLiteral("org.freedesktop.login1.Session");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace

LoginPower::LoginPower(QDBusConnection systemBus, QObject *parent)
    : Power{parent}, m_bus{std::move(systemBus)}
{
}

void LoginPower::begin()
{
    m_bus.connect(kService, kPath, kManager, QStringLiteral("PrepareForSleep"), this,
                  SLOT(hearSleep(bool)));
    auto call = QDBusMessage::createMethodCall(kService, kPath, kManager,
                                               QStringLiteral("GetSessionByPID"));
    call << static_cast<uint>(QCoreApplication::applicationPid());
    askBus<QDBusPendingReply<QDBusObjectPath>>(
        m_bus, call, this, [this](const QDBusPendingReply<QDBusObjectPath> &reply) {
            if (!reply.isError()) {
                m_state = {.availability = Availability::ready, .message = {}};
                followSession(reply.value().path());
                return;
            }
            // A program that a service started has no session of its own, and hears of sleep
            // all the same.
            const bool isThere = reply.error().name().startsWith(kService);
            m_state = {.availability = isThere ? Availability::stale : Availability::offline,
                       .message = isThere ? tr("Whether the screen is locked is not known.")
                                          : tr("This system does not tell when it sleeps.")};
        });
}

void LoginPower::followSession(const QString &path)
{
    m_bus.connect(kService, path, kProperties, QStringLiteral("PropertiesChanged"), this,
                  SLOT(hearProperties(QString, QVariantMap)));
    auto call =
        QDBusMessage::createMethodCall(kService, path, kProperties, QStringLiteral("Get"));
    call << kSession << QStringLiteral("LockedHint");
    askBus<QDBusPendingReply<QDBusVariant>>(
        m_bus, call, this, [this](const QDBusPendingReply<QDBusVariant> &reply) {
            if (!reply.isError()) {
                setLocked(reply.value().variant().toBool());
            }
        });
}

void LoginPower::hearSleep(bool isGoingToSleep)
{
    if (isGoingToSleep) {
        emit suspending();
    } else {
        emit resumed();
    }
}

void LoginPower::hearProperties(const QString &interface, const QVariantMap &changed)
{
    const auto locked = changed.find(QStringLiteral("LockedHint"));
    if (interface == kSession && locked != changed.end()) {
        setLocked(locked->toBool());
    }
}

void LoginPower::setLocked(bool isLocked)
{
    if (m_isLocked != isLocked) {
        m_isLocked = isLocked;
        emit lockedChanged();
    }
}

} // namespace Velvetnook
