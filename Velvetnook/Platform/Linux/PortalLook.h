// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/SessionLook.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QHash>
#include <QVariant>

namespace Velvetnook
{

// From the portal org.freedesktop.portal.Settings, and live from then on.
class PortalLook : public SessionLook
{
    Q_OBJECT

public:
    explicit PortalLook(const QDBusConnection &bus, QObject *parent = nullptr);

    void begin();
    Look look() const override { return m_look; }
    ServiceState state() const override { return m_state; }

private slots:
    void hear(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void read();
    void follow();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    QHash<QString, QVariant> m_values; // by "group key"
    Look m_look;
    ServiceState m_state;
};

} // namespace Velvetnook
