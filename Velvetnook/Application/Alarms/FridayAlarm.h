// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Velvetnook/Application/NotificationRequest.h"

#include <QObject>

#include <optional>
#include <string>

namespace Velvetnook
{

class ApplicationModel;

// The one quiet invitation of each Friday. That it was shown is saved first, so that it never
// comes twice; a Friday on which the computer was off has none.
class FridayAlarm : public QObject
{
    Q_OBJECT

public:
    explicit FridayAlarm(ApplicationModel &model, QObject *parent = nullptr);

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);

private:
    std::optional<Base::Instant> due(Base::Instant now) const;
    void invite(Base::Instant now);
    NotificationRequest request() const;

    ApplicationModel &m_model;
    std::optional<Base::Instant> m_retryAt{};
    bool m_isSaving = false;
};

} // namespace Velvetnook
