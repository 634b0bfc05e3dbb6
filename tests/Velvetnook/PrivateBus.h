// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <sys/prctl.h>

#include <csignal>

// A bus daemon of the test's own, which starts no services. Everybody who takes part has a
// connection of their own to it, as programs have.
class PrivateBus
{
public:
    PrivateBus()
    {
        const QString configuration = m_folder.filePath(QStringLiteral("bus.conf"));
        QFile file{configuration};
        if (file.open(QIODevice::WriteOnly)) {
            file.write(
                "<busconfig><type>session</type><listen>unix:dir=" + m_folder.path().toUtf8() +
                "</listen><policy context=\"default\"><allow send_destination=\"*\" "
                "eavesdrop=\"true\"/><allow eavesdrop=\"true\"/><allow own=\"*\"/>"
                "</policy></busconfig>");
            file.close();
        }
        // Also when the test is killed, the daemon ends with it.
        m_daemon.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        m_daemon.setStandardErrorFile(QProcess::nullDevice());
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--config-file=") + configuration});
        m_daemon.waitForReadyRead(10'000);
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        for (const QString &name : m_connections) {
            QDBusConnection::disconnectFromBus(name);
        }
        m_daemon.kill();
        m_daemon.waitForFinished(10'000);
    }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    const QString &address() const { return m_address; }

    // Each name only once in a process, so they are numbered.
    QDBusConnection connect()
    {
        static int counted = 0;
        m_connections.push_back(QStringLiteral("test-%1").arg(++counted));
        return QDBusConnection::connectToBus(m_address, m_connections.back());
    }
    // As when its program ends.
    static void leave(const QDBusConnection &connection)
    {
        QDBusConnection::disconnectFromBus(connection.name());
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

// A connection to a bus that is not there.
inline QDBusConnection noBus()
{
    return QDBusConnection::connectToBus(QStringLiteral("unix:path=/nonexistent/bus"),
                                         QStringLiteral("no-bus"));
}

// Lets the loop run until it is so, or ten seconds are over.
template <class Condition>
bool eventually(Condition isSo)
{
    return QTest::qWaitFor(isSo, 10'000);
}

// For what must not happen: all that is on its way has arrived after it.
inline void settle(const QDBusConnection &bus)
{
    bool isAnswered = false;
    QDBusPendingCallWatcher watcher{bus.asyncCall(QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("GetId")))};
    QObject::connect(&watcher, &QDBusPendingCallWatcher::finished,
                     [&isAnswered] { isAnswered = true; });
    eventually([&] { return isAnswered; });
    QCoreApplication::processEvents();
}
