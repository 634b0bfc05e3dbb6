// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <cstdint>
#include <optional>
#include <vector>

namespace Velvetnook
{

// A key that is wished for.
struct PortalKey {
    QString target;
    QString title;   // what the desktop shows to the user
    QString trigger; // as the desktops' shortcut notation has it: "CTRL+SHIFT+space"

    bool operator==(const PortalKey &) const = default;
};

// Keys of a session in which no program can take one itself, through the portal
// org.freedesktop.portal.GlobalShortcuts. The desktop may ask the user about them, and may
// give other keys than were wished for.
class PortalKeys : public QObject
{
    Q_OBJECT

public:
    enum class State : std::uint8_t {
        asking,
        given,
        refused, // by the user
        absent   // there is no such portal, or it failed
    };

    explicit PortalKeys(const QDBusConnection &bus, QObject *parent = nullptr);
    ~PortalKeys() override;
    PortalKeys(const PortalKeys &) = delete;
    PortalKeys &operator=(const PortalKeys &) = delete;

    // In place of those that were asked for before; nothing where they are the same.
    void ask(const std::vector<PortalKey> &wished);
    State state() const { return m_state; }
    // What the desktop calls the key that it gave, which may be nothing; none where it gave
    // none.
    std::optional<QString> givenTo(const QString &target) const;

signals:
    void stateChanged();
    void activated(const QString &target);

private slots:
    // Each is the desktop's answer to one request, which comes as a signal.
    void hearSession(uint failure, const QVariantMap &results);
    void hearKeys(uint failure, const QVariantMap &results);
    void hearClosed(); // the session, by the desktop
    void hearChange(const QDBusObjectPath &session, const QDBusMessage &message);
    void hearKey(const QDBusObjectPath &session, const QString &target, qulonglong time,
                 const QVariantMap &options);

private:
    void begin();
    void end();
    void leaveSession();
    void bind();
    QString placeOf(const char *what, const QString &token) const;
    void request(QDBusMessage call, QVariantMap options, const char *answer);
    void stopHearing();
    void setState(State state);
    void keep(const QVariant &shortcuts);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    std::vector<PortalKey> m_wished;
    QHash<QString, QString> m_given;
    QString m_session;              // its object on the bus
    QString m_request;              // of the answer that is waited for
    const char *m_answer = nullptr; // the slot that hears it
    int m_count = 0;                // of the requests, each of which has a name of its own
    State m_state = State::absent;
};

} // namespace Velvetnook
