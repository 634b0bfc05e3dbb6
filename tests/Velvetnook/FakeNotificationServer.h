// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PrivateBus.h"

#include <QDBusError>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <vector>

// What a notification was when it arrived.
struct ReceivedNotification {
    uint replaces{};
    QString title{};
    QString body{};
    QStringList actions{};
    QVariantMap hints{};
};

// The desktop's side, as far as the tests need it.
class FakeNotificationServer : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    FakeNotificationServer(const QDBusConnection &bus, QStringList abilities)
        : m_bus{bus}, m_abilities{std::move(abilities)}
    {
        m_bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                             QDBusConnection::ExportAllSlots |
                                 QDBusConnection::ExportAllSignals);
        m_bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }
    ~FakeNotificationServer() override { PrivateBus::leave(m_bus); }
    FakeNotificationServer(const FakeNotificationServer &) = delete;
    FakeNotificationServer &operator=(const FakeNotificationServer &) = delete;

    void refuseAll() { m_refuses = true; }
    const std::vector<ReceivedNotification> &received() const { return m_received; }
    const std::vector<uint> &closed() const { return m_closed; }

public slots:
    QStringList GetCapabilities() { return m_abilities; }

    uint Notify(const QString &, uint replaces, const QString &, const QString &title,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int,
                const QDBusMessage &message)
    {
        if (m_refuses) {
            m_bus.send(message.createErrorReply(QDBusError::AccessDenied,
                                                QStringLiteral("not for you")));
            return 0;
        }
        m_received.push_back({.replaces = replaces,
                              .title = title,
                              .body = body,
                              .actions = actions,
                              .hints = hints});
        return replaces == 0 ? ++m_last : replaces;
    }

    void CloseNotification(uint number) { m_closed.push_back(number); }

signals:
    void ActionInvoked(uint number, const QString &key);
    void NotificationClosed(uint number, uint reason);

private:
    QDBusConnection m_bus;
    QStringList m_abilities;
    bool m_refuses = false;
    uint m_last = 40;
    std::vector<ReceivedNotification> m_received;
    std::vector<uint> m_closed;
};
