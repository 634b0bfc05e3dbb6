// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Platform/Linux/BusNotifications.h"

#include "Velvetnook/Platform/Linux/BusCall.h"

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

using KestCore::Availability;

const QString kName = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(kName, kPath, kName, method);
}

// Whether the error says that there is no server, and not that the server would not.
bool saysThatNobodyIsThere(const QDBusError &error)
{
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
    case QDBusError::NoServer:
    case QDBusError::Disconnected:
        return true;
    default:
        return error.name() == u"org.freedesktop.DBus.Error.NameHasNoOwner" ||
               error.name().startsWith(u"org.freedesktop.DBus.Error.Spawn.");
    }
}

} // namespace

BusNotifications::BusNotifications(const QDBusConnection &bus, QString desktopEntry,
                                   QObject *parent)
    : Notifications{parent}, m_bus{bus}, m_desktopEntry{std::move(desktopEntry)},
      m_watcher{kName, bus, QDBusServiceWatcher::WatchForOwnerChange}
{
    m_bus.connect(kName, kPath, kName, QStringLiteral("ActionInvoked"), this,
                  SLOT(hearAction(uint, QString)));
    m_bus.connect(kName, kPath, kName, QStringLiteral("NotificationClosed"), this,
                  SLOT(hearClosed(uint, uint)));
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                forgetServer();
                if (!owner.isEmpty()) {
                    begin();
                }
            });
}

void BusNotifications::begin()
{
    if (std::exchange(m_isAsking, true)) {
        m_asksAgain = true; // a server may have come since
        return;
    }
    m_asksAgain = false;
    askBus<QDBusPendingReply<QStringList>>(
        m_bus, callOf(QStringLiteral("GetCapabilities")), this,
        [this](const QDBusPendingReply<QStringList> &reply) {
            m_isAsking = false;
            if (!reply.isError()) {
                learn(reply.value());
                return;
            }
            if (m_asksAgain) {
                begin();
                return;
            }
            const auto waiting = std::exchange(m_waiting, {});
            fail({}, reply.error());
            for (const NotificationRequest &request : waiting) {
                fail(request.id, reply.error());
            }
        });
}

void BusNotifications::learn(const QStringList &abilities)
{
    m_abilities = abilities;
    setState({.availability = Availability::ready, .message = {}});
    for (const NotificationRequest &request : std::exchange(m_waiting, {})) {
        send(request);
    }
}

void BusNotifications::post(const NotificationRequest &request)
{
    if (m_state.isReady()) {
        send(request);
        return;
    }
    std::erase_if(m_waiting, [&](const auto &waiting) { return waiting.id == request.id; });
    m_waiting.push_back(request);
    begin();
}

void BusNotifications::send(const NotificationRequest &request)
{
    const auto known = m_shown.find(request.id);
    if (known != m_shown.end() && known->number == 0) {
        known->next = request; // the number to replace is not known yet
        known->isWithdrawn = false;
        return;
    }
    auto call = callOf(QStringLiteral("Notify"));
    call.setArguments(arguments(request, known == m_shown.end() ? 0 : known->number));
    m_shown.insert(request.id, Shown{});
    askBus<QDBusPendingReply<uint>>(
        m_bus, call, this, [this, id = request.id](const QDBusPendingReply<uint> &reply) {
            if (reply.isError()) {
                m_shown.remove(id);
                fail(id, reply.error());
            } else {
                settle(id, reply.value());
            }
        });
}

void BusNotifications::settle(const QString &id, uint number)
{
    const auto shown = m_shown.find(id);
    if (shown != m_shown.end()) {
        shown->number = number;
        const auto next = std::exchange(shown->next, std::nullopt);
        if (next) {
            send(*next);
        } else if (shown->isWithdrawn) {
            withdraw(id);
        }
    }
    emit answered(id, Answer::shown, {});
}

// An empty id: what failed was no request.
void BusNotifications::fail(const QString &id, const QDBusError &error)
{
    const bool isAbsent = saysThatNobodyIsThere(error);
    QString reason = error.message();
    if (isAbsent) {
        forgetServer();
        reason = m_state.message;
    } else if (error.type() == QDBusError::NoReply) {
        reason = tr("The notification service does not answer.");
    }
    if (id.isEmpty() && !isAbsent) {
        setState({.availability = Availability::error, .message = reason});
    } else if (!id.isEmpty()) {
        emit answered(id, isAbsent ? Answer::noService : Answer::refused, reason);
    }
}

void BusNotifications::forgetServer()
{
    m_abilities.clear();
    m_shown.clear();
    setState({.availability = Availability::offline,
              .message = tr("Nothing in this session shows notifications.")});
}

void BusNotifications::setState(ServiceState state)
{
    if (m_state != state) {
        m_state = std::move(state);
        emit stateChanged();
    }
}

QVariantList BusNotifications::arguments(const NotificationRequest &request,
                                         uint replaces) const
{
    QVariantMap hints{{QStringLiteral("desktop-entry"), m_desktopEntry},
                      {QStringLiteral("urgency"), QVariant::fromValue<uchar>(1)}};
    if (!request.withSound) {
        hints.insert(QStringLiteral("suppress-sound"), true);
    } else if (playsSounds()) {
        hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
    }
    QStringList actions;
    if (m_abilities.contains(u"actions")) {
        actions << QStringLiteral("default") << tr("Open");
        for (const NotificationAction &action : request.actions) {
            actions << action.key << action.label;
        }
    }
    QString title = request.title;
    QString body = request.body;
    if (m_abilities.contains(u"body-markup")) {
        body = body.toHtmlEscaped();
    } else if (!m_abilities.contains(u"body") && !body.isEmpty()) {
        title += QStringLiteral(": ") + std::exchange(body, {}).replace(u'\n', u' ');
    }
    return {QStringLiteral("Velvetnook"),
            replaces,
            m_desktopEntry,
            title,
            body,
            actions,
            hints,
            -1};
}

void BusNotifications::withdraw(const QString &id)
{
    std::erase_if(m_waiting, [&](const auto &waiting) { return waiting.id == id; });
    const auto shown = m_shown.find(id);
    if (shown == m_shown.end()) {
        return;
    }
    if (shown->number == 0) {
        shown->isWithdrawn = true;
        shown->next.reset();
        return;
    }
    auto call = callOf(QStringLiteral("CloseNotification"));
    call << shown->number;
    m_shown.erase(shown);
    m_bus.asyncCall(call, kBusPatienceMs);
}

QString BusNotifications::idOf(uint number) const
{
    const auto found = std::ranges::find_if(
        m_shown, [number](const Shown &shown) { return shown.number == number; });
    return number == 0 || found == m_shown.end() ? QString{} : found.key();
}

void BusNotifications::hearAction(uint number, const QString &key)
{
    const QString id = idOf(number);
    if (!id.isEmpty()) {
        emit actionInvoked(id, key);
    }
}

void BusNotifications::hearClosed(uint number, uint)
{
    const QString id = idOf(number);
    if (!id.isEmpty()) {
        m_shown.remove(id);
    }
}

} // namespace Velvetnook
