// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/Capabilities.h"

#include <QDBusConnection>
#include <QObject>

namespace Velvetnook
{

// Finds out what the session gives. Starts nothing that does not run yet.
// "x11", "wayland" or what else the session says of itself; may be empty.
QString sessionType();

class SessionProbe : public QObject
{
    Q_OBJECT

public:
    SessionProbe(QDBusConnection session, QDBusConnection system, QObject *parent = nullptr);

    // Ends with `done`. One that is on its way is enough.
    void begin();
    const SessionFacts &facts() const { return m_facts; }

signals:
    void done();

private:
    void askNames(const QDBusConnection &bus, const QString &method,
                  void (SessionProbe::*take)(const QStringList &));
    void takeRunning(const QStringList &names);
    void takeStartable(const QStringList &names);
    void takeSystem(const QStringList &names);
    void askTray();
    void askNotifications();
    void beginOne() { ++m_open; }
    void endOne();

    QDBusConnection m_session;
    QDBusConnection m_system;
    SessionFacts m_next;
    SessionFacts m_facts;
    int m_open = 0; // questions without an answer
};

} // namespace Velvetnook
