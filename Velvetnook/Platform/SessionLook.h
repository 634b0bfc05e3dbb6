// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Platform/ServiceState.h"

#include <QObject>

namespace Velvetnook
{

// How the desktop wants its applications to look.
struct Look {
    bool isDark = true; // as the product is where the desktop has no wish
    bool reducesMotion = false;
    bool wantsContrast = false;

    bool operator==(const Look &) const = default;
};

class SessionLook : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    virtual Look look() const = 0;
    virtual ServiceState state() const = 0;

signals:
    void changed();
};

} // namespace Velvetnook
