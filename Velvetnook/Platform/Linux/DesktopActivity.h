// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/ScreenTime/ScreenActivity.h"
#include "Velvetnook/Platform/ForegroundWatch.h"
#include "Velvetnook/Platform/Power.h"

#include <QPointer>

namespace Velvetnook
{

// Through the X server, which knows the window in front and the last touch, and the service
// that knows whether the screen is locked.
class DesktopActivity : public ScreenActivity
{
    Q_OBJECT

public:
    // Without a `power`, sleep and lock are not known.
    explicit DesktopActivity(Power *power, QObject *parent = nullptr);

    QString problem() const override;
    std::optional<KestCore::FocusedApplication> application() const override;
    std::optional<Base::Seconds> idle() const override;
    bool isLocked() const override { return m_power != nullptr && m_power->isLocked(); }

private:
    ForegroundWatch m_front;
    QPointer<Power> m_power;
};

} // namespace Velvetnook
