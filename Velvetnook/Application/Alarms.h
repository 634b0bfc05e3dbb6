// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"
#include "Velvetnook/Application/NotificationRequest.h"

#include <QObject>

#include <functional>
#include <optional>
#include <utility>

namespace Velvetnook
{

class ApplicationModel;
class FridayAlarm;
class PrayerAlarm;
class ReminderAlarm;
class RotationAlarm;
class TimerAlarm;

// Everything that happens by itself because its time has come. Made once, when the
// application starts; whoever talks to the desktop shows what is wanted and reports back.
class Alarms : public QObject
{
    Q_OBJECT

public:
    // What the user has in view now, and needs not be told.
    struct InView {
        std::function<bool()> phrase = [] { return false; }; // the pinned one, in the strip
        std::function<bool()> panel = [] { return false; };
    };

    explicit Alarms(ApplicationModel &model, QObject *parent = nullptr);

    void follow(InView inView) { m_inView = std::move(inView); }

    // When the next reminder comes; nothing while none is to come.
    std::optional<Base::Instant> nextReminder() const;

    // The user has chosen an action of a notification; "default" is a click on the whole.
    void act(const QString &notificationId, const QString &key);
    // Whether the desktop took the notification; remembered as the status of notifications.
    void reportShown(const QString &notificationId, bool isAllowed);
    // Shows what a reminder looks like.
    void requestPreview();

signals:
    void notificationWanted(const Velvetnook::NotificationRequest &request);
    // What it was about is over or was seen to elsewhere.
    void notificationObsolete(const QString &notificationId);
    // The pinned phrase is in view already: the strip draws the eye to it.
    void emphasisWanted();
    // The invitation of a Friday was taken.
    void fridayBegun();
    // What was counted to its target is to be finished.
    void finishWanted();
    void toolWanted(const QString &toolId);
    void nextReminderChanged();
    void previewReported(bool isAllowed);

private:
    void actOnTarget(const QString &key);

    ApplicationModel &m_model;
    InView m_inView;
    ReminderAlarm *m_reminders;
    RotationAlarm *m_rotation;
    TimerAlarm *m_timers;
    PrayerAlarm *m_prayers;
    FridayAlarm *m_friday;
};

} // namespace Velvetnook
