// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Notifications.h"

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QStringList>

#include <optional>
#include <vector>

namespace Velvetnook
{

// Notifications over org.freedesktop.Notifications. The server may come, go and be another one
// at any time: what it can do is asked anew each time it appears.
class BusNotifications : public Notifications
{
    Q_OBJECT

public:
    // `desktopEntry` is the name of our desktop file, by which servers know the sender.
    BusNotifications(const QDBusConnection &bus, QString desktopEntry,
                     QObject *parent = nullptr);

    void post(const NotificationRequest &request) override;
    void withdraw(const QString &id) override;
    ServiceState state() const override { return m_state; }
    bool playsSounds() const override { return m_abilities.contains(u"sound"); }

    // Asks what the server can do, which also starts one that the bus can start.
    void begin();

private slots:
    void hearAction(uint number, const QString &key);
    void hearClosed(uint number, uint reason);

private:
    // A notification on its way or on the screen.
    struct Shown {
        uint number = 0; // the server's; 0 until it has answered
        std::optional<NotificationRequest> next{};
        bool isWithdrawn = false;
    };

    void send(const NotificationRequest &request);
    void settle(const QString &id, uint number);
    void fail(const QString &id, const QDBusError &error);
    void forgetServer();
    void learn(const QStringList &abilities);
    void setState(ServiceState state);
    QVariantList arguments(const NotificationRequest &request, uint replaces) const;
    QString idOf(uint number) const;

    QDBusConnection m_bus;
    QString m_desktopEntry;
    QDBusServiceWatcher m_watcher;
    ServiceState m_state;
    QStringList m_abilities;
    bool m_isAsking = false;
    bool m_asksAgain = false; // the question under way began too early to decide
    std::vector<NotificationRequest> m_waiting; // for the abilities
    QHash<QString, Shown> m_shown;
};

} // namespace Velvetnook
