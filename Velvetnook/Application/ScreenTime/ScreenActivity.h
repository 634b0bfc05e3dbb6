// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Tools/ScreenTime.h"

#include <QObject>

#include <optional>

namespace Velvetnook
{

// What somebody does at the screen. Made only when it is to be counted; it sleeps until
// something of it changes.
class ScreenActivity : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Empty when all can be told, else what cannot.
    virtual QString problem() const = 0;
    // Nothing: no window has the keyboard.
    virtual std::optional<KestCore::FocusedApplication> application() const = 0;
    // Since somebody last touched a key or the pointer; nothing where that cannot be known.
    virtual std::optional<Base::Seconds> idle() const = 0;
    virtual bool isLocked() const = 0;

signals:
    void applicationChanged();
    void lockedChanged();
    void suspending();
    void resumed();
};

} // namespace Velvetnook
