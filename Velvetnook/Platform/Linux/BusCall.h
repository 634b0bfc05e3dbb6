// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QObject>

#include <utility>

namespace Velvetnook
{

// How long an answer of the bus is waited for. A service may have to start first.
inline constexpr int kBusPatienceMs = 10'000;

// Asks over the bus and hands the reply to `handler`, unless `owner` is gone by then.
template <class Reply, class Handler>
void askBus(const QDBusConnection &bus, const QDBusMessage &call, QObject *owner,
            Handler handler)
{
    // Without a bus a pending call would never end.
    const QDBusPendingCall pending =
        bus.isConnected()
            ? bus.asyncCall(call, kBusPatienceMs)
            : QDBusPendingCall::fromError({QDBusError::Disconnected, QStringLiteral("no bus")});
    auto *watcher = new QDBusPendingCallWatcher{pending, owner};
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, owner,
                     [handler = std::move(handler)](QDBusPendingCallWatcher *done) mutable {
                         const Reply reply = *done;
                         done->deleteLater();
                         handler(reply);
                     });
}

} // namespace Velvetnook
