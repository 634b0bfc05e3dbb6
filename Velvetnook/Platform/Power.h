// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ServiceState.h"

#include <QObject>

namespace Velvetnook
{

// What the machine does with the session: it sleeps and wakes, and its screen is locked.
class Power : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual bool isLocked() const = 0;
    virtual ServiceState state() const = 0;

signals:
    void suspending();
    void resumed();
    void lockedChanged();
};

} // namespace Velvetnook
