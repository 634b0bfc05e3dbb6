// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/PortalKeys.h"

#include "Velvetnook/Platform/Linux/BusCall.h"

#include <QDBusArgument>
#include <QDBusMetaType>

#include <utility>

namespace Velvetnook
{

namespace
{

// One of the list that the portal takes and gives: its id and what is known of it.
struct Shortcut {
    QString id;
    QVariantMap about;
};
using Shortcuts = QList<Shortcut>;

QDBusArgument &operator<<(QDBusArgument &to, const Shortcut &shortcut)
{
    to.beginStructure();
    to << shortcut.id << shortcut.about;
    to.endStructure();
    return to;
}

const QDBusArgument &operator>>(const QDBusArgument &from, Shortcut &shortcut)
{
    from.beginStructure();
    from >> shortcut.id >> shortcut.about;
    from.endStructure();
    return from;
}

const QString kService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString kRequest = QStringLiteral("org.freedesktop.portal.Request");
const QString kSession = QStringLiteral("org.freedesktop.portal.Session");
const QString kClosed = QStringLiteral("Closed");
const QString kResponse = QStringLiteral("Response");
constexpr uint kCancelled = 1; // by the user; every other failure is the portal's

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(kService, kPath, kInterface, method);
}

} // namespace

} // namespace Velvetnook

Q_DECLARE_METATYPE(Velvetnook::Shortcut)

namespace Velvetnook
{

PortalKeys::PortalKeys(const QDBusConnection &bus, QObject *parent)
    : QObject{parent}, m_bus{bus},
      m_watcher{kService, bus, QDBusServiceWatcher::WatchForOwnerChange}
{
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<Shortcuts>();
    // The bus looks for the types of a slot by name, and refuses one whose types it cannot
    // find.
    qRegisterMetaType<QDBusObjectPath>();
    qRegisterMetaType<QDBusMessage>();
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("Activated"), this,
                  SLOT(hearKey(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    m_bus.connect(kService, kPath, kInterface, QStringLiteral("ShortcutsChanged"), this,
                  SLOT(hearChange(QDBusObjectPath, QDBusMessage)));
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &before, const QString &owner) {
                if (before.isEmpty() && m_state == State::asking) {
                    return; // it was started by our own question
                }
                leaveSession();
                stopHearing();
                if (owner.isEmpty()) {
                    setState(State::absent);
                } else if (!m_wished.empty()) {
                    begin();
                }
            });
}

PortalKeys::~PortalKeys() { end(); }

void PortalKeys::ask(const std::vector<PortalKey> &wished)
{
    if (wished == m_wished) {
        return;
    }
    m_wished = wished;
    end(); // a session takes its keys once
    if (m_wished.empty()) {
        setState(State::absent);
    } else {
        begin();
    }
}

std::optional<QString> PortalKeys::givenTo(const QString &target) const
{
    const auto found = m_given.find(target);
    return found == m_given.end() ? std::nullopt : std::optional{*found};
}

// The portal names what comes into being after who asked and the token that was handed over.
QString PortalKeys::placeOf(const char *what, const QString &token) const
{
    const QString sender =
        m_bus.baseService().mid(1).replace(QLatin1Char{'.'}, QLatin1Char{'_'});
    return kPath + QStringLiteral("/%1/%2/%3").arg(QLatin1String{what}, sender, token);
}

void PortalKeys::begin()
{
    m_given.clear();
    setState(State::asking);
    const QString token = QStringLiteral("velvetnook%1").arg(m_count);
    m_session = placeOf("session", token);
    m_bus.connect(kService, m_session, kSession, kClosed, this, SLOT(hearClosed()));
    request(callOf(QStringLiteral("CreateSession")),
            {{QStringLiteral("session_handle_token"), token}},
            SLOT(hearSession(uint, QVariantMap)));
}

// A question that is still open on the screen goes as well.
void PortalKeys::end()
{
    const auto close = [this](const QString &path, const QString &interface) {
        m_bus.send(
            QDBusMessage::createMethodCall(kService, path, interface, QStringLiteral("Close")));
    };
    if (!m_request.isEmpty()) {
        close(m_request, kRequest);
        stopHearing();
    }
    if (!m_session.isEmpty()) {
        close(m_session, kSession);
        leaveSession();
    }
}

void PortalKeys::leaveSession()
{
    if (!m_session.isEmpty()) {
        m_bus.disconnect(kService, m_session, kSession, kClosed, this, SLOT(hearClosed()));
        m_session.clear();
    }
}

void PortalKeys::hearClosed()
{
    leaveSession();
    stopHearing();
    m_given.clear();
    setState(State::refused);
}

// The answer may be there before the call returns, so it is listened for first, at the place
// that the portal promises.
void PortalKeys::request(QDBusMessage call, QVariantMap options, const char *answer)
{
    const QString token = QStringLiteral("velvetnook%1").arg(m_count++);
    m_request = placeOf("request", token);
    m_answer = answer;
    m_bus.connect(kService, m_request, kRequest, kResponse, this, answer);
    options.insert(QStringLiteral("handle_token"), token);
    call << options;
    askBus<QDBusPendingReply<QDBusObjectPath>>(
        m_bus, call, this,
        [this, asked = m_request](const QDBusPendingReply<QDBusObjectPath> &reply) {
            if (reply.isError() && asked == m_request) {
                stopHearing();
                leaveSession();
                setState(State::absent);
            }
        });
}

void PortalKeys::stopHearing()
{
    if (!m_request.isEmpty()) {
        m_bus.disconnect(kService, m_request, kRequest, kResponse, this, m_answer);
        m_request.clear();
    }
}

void PortalKeys::hearSession(uint failure, const QVariantMap &)
{
    stopHearing();
    if (failure != 0) {
        leaveSession();
        setState(failure == kCancelled ? State::refused : State::absent);
        return;
    }
    bind();
}

void PortalKeys::bind()
{
    Shortcuts shortcuts;
    for (const PortalKey &key : m_wished) {
        shortcuts.push_back({.id = key.target,
                             .about = {{QStringLiteral("description"), key.title},
                                       {QStringLiteral("preferred_trigger"), key.trigger}}});
    }
    QDBusMessage call = callOf(QStringLiteral("BindShortcuts"));
    call << QVariant::fromValue(QDBusObjectPath{m_session}) << QVariant::fromValue(shortcuts)
         << QString{}; // no window of ours to put a question over
    request(call, {}, SLOT(hearKeys(uint, QVariantMap)));
}

void PortalKeys::hearKeys(uint failure, const QVariantMap &results)
{
    stopHearing();
    if (failure != 0) {
        setState(failure == kCancelled ? State::refused : State::absent);
        return;
    }
    keep(results.value(QStringLiteral("shortcuts")));
    setState(State::given);
}

void PortalKeys::hearChange(const QDBusObjectPath &session, const QDBusMessage &message)
{
    if (!m_session.isEmpty() && session.path() == m_session && message.arguments().size() > 1) {
        keep(message.arguments().at(1));
        emit stateChanged();
    }
}

void PortalKeys::hearKey(const QDBusObjectPath &session, const QString &target, qulonglong,
                         const QVariantMap &)
{
    if (!m_session.isEmpty() && session.path() == m_session) {
        emit activated(target);
    }
}

// A desktop that does not say what it calls a key has given it all the same.
void PortalKeys::keep(const QVariant &shortcuts)
{
    m_given.clear();
    for (const Shortcut &shortcut : qdbus_cast<Shortcuts>(shortcuts)) {
        m_given.insert(shortcut.id,
                       shortcut.about.value(QStringLiteral("trigger_description")).toString());
    }
}

void PortalKeys::setState(State state)
{
    m_state = state;
    emit stateChanged();
}

} // namespace Velvetnook
