// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/NotificationRequest.h"

#include <QObject>

#include <string>

namespace Velvetnook
{

class ApplicationModel;

// Tells that a target was reached, wherever it was counted: here, from the tray or by the
// command line. Once for each target of a session.
class TargetNotice : public QObject
{
    Q_OBJECT

public:
    static constexpr QLatin1String kId{"kest-target"};

    explicit TargetNotice(ApplicationModel &model, QObject *parent = nullptr);

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);
    void notificationObsolete(const QString &notificationId);

private:
    void follow();
    NotificationRequest request() const;

    ApplicationModel &m_model;
    std::string m_sessionId;
    std::size_t m_reached; // targets of that session
    bool m_isTold = false;
};

} // namespace Velvetnook
