// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "KestCore/Models/DevotionalState.h"
#include "Velvetnook/Application/NotificationRequest.h"

#include <QObject>

#include <functional>
#include <optional>

namespace Velvetnook
{

class ApplicationModel;

// The gentle reminders. The next one is counted from the last, from the start of the program
// or from the moment at which the user set when they come.
class ReminderAlarm : public QObject
{
    Q_OBJECT

public:
    // `isInView`: whether the pinned phrase can be seen now.
    ReminderAlarm(ApplicationModel &model, std::function<bool()> isInView,
                  QObject *parent = nullptr);

    std::optional<Base::Instant> next() const { return m_next; }
    // Shows the reminder again a little later, whatever the interval.
    void snooze();

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);
    void emphasisWanted();
    void nextChanged();

private:
    void startFrom(Base::Instant after);
    void followPreferences();
    void followCalendar();
    void ring(Base::Instant now);
    void ringAgain();
    NotificationRequest request() const;

    ApplicationModel &m_model;
    std::function<bool()> m_isInView;
    KestCore::Preferences m_preferences; // that `m_next` was computed from
    Base::Instant m_after{};             // the next one is counted from here
    std::optional<Base::Instant> m_next{};
    std::optional<Base::Instant> m_snoozedUntil{};
};

} // namespace Velvetnook
