// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/TimerList.h"
#include "Velvetnook/Application/NotificationRequest.h"

#include <QObject>

#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;

// Handles the ends of timers. An end is first saved as announced and only then announced: a
// full disk delays it, and nothing announces it twice.
class TimerAlarm : public QObject
{
    Q_OBJECT

public:
    explicit TimerAlarm(ApplicationModel &model, QObject *parent = nullptr);

    // What the actions of the notification do.
    void startAgain(const std::string &timerId);
    void startBreak();

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);
    // The timer runs again, or is gone.
    void notificationObsolete(const QString &notificationId);

private:
    void followRecords();
    std::optional<Base::Instant> due(Base::Instant now) const;
    void settle();
    void finish(const std::vector<KestCore::TimerNotification> &posted,
                const Base::Result<void> &result);
    NotificationRequest request(const KestCore::TimerNotification &posted) const;

    ApplicationModel &m_model;
    std::vector<KestCore::Timer> m_timers;
    std::vector<std::string> m_announced{};   // timers whose notification may still stand
    std::optional<Base::Instant> m_retryAt{}; // after a step that was refused
    bool m_isSettling = false;
    bool m_settlesAgain = false;
    bool m_hasToldFailure = false;
};

} // namespace Velvetnook
