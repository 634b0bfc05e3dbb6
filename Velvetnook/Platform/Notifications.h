// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/NotificationRequest.h"
#include "Velvetnook/Platform/ServiceState.h"

#include <QObject>

#include <cstdint>

namespace Velvetnook
{

// The desktop's notifications. Nothing waits: what became of a request is told by `answered`.
class Notifications : public QObject
{
    Q_OBJECT

public:
    enum class Answer : std::uint8_t {
        shown,
        refused,  // there is a service, and it would not
        noService // nothing in this session shows notifications
    };
    Q_ENUM(Answer)

    using QObject::QObject;

    // One that is still shown under the same id is replaced.
    virtual void post(const NotificationRequest &request) = 0;
    virtual void withdraw(const QString &id) = 0;
    virtual ServiceState state() const = 0;
    // Whether the service itself plays a sound for a request that wants one.
    virtual bool playsSounds() const = 0;

signals:
    void answered(const QString &id, Velvetnook::Notifications::Answer answer,
                  const QString &reason);
    // The key is "default" when the notification itself was clicked.
    void actionInvoked(const QString &id, const QString &key);
    void stateChanged();
};

} // namespace Velvetnook
