// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Power.h"

#include <QDBusConnection>
#include <QVariantMap>

namespace Velvetnook
{

// Through logind on the system bus.
class LoginPower : public Power
{
    Q_OBJECT

public:
    explicit LoginPower(QDBusConnection systemBus, QObject *parent = nullptr);

    void begin();
    bool isLocked() const override { return m_isLocked; }
    ServiceState state() const override { return m_state; }

private slots:
    void hearSleep(bool isGoingToSleep);
    void hearProperties(const QString &interface, const QVariantMap &changed);

private:
    void followSession(const QString &path);
    void setLocked(bool isLocked);

    QDBusConnection m_bus;
    ServiceState m_state;
    bool m_isLocked = false;
};

} // namespace Velvetnook
