// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms.h"

#include "KestCore/Devotional/Reminders.h"
#include "Velvetnook/Application/Alarms/FridayAlarm.h"
#include "Velvetnook/Application/Alarms/PrayerAlarm.h"
#include "Velvetnook/Application/Alarms/ReminderAlarm.h"
#include "Velvetnook/Application/Alarms/RotationAlarm.h"
#include "Velvetnook/Application/Alarms/TargetNotice.h"
#include "Velvetnook/Application/Alarms/TimerAlarm.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/ZoneWatch.h"

namespace Velvetnook
{

namespace
{

constexpr QLatin1String kPreviewId{"kest-preview"};

} // namespace

bool wantsSound(const KestCore::Preferences &preferences, bool KestCore::Preferences::*which)
{
    return preferences.soundEnabled && preferences.*which;
}

Alarms::Alarms(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model},
      m_reminders{new ReminderAlarm{model, [this] { return m_inView.phrase(); }, this}},
      m_rotation{new RotationAlarm{model, this}}, m_timers{new TimerAlarm{model, this}},
      m_prayers{new PrayerAlarm{model, this}}, m_friday{new FridayAlarm{model, this}}
{
    connect(m_reminders, &ReminderAlarm::notificationWanted, this, &Alarms::notificationWanted);
    connect(m_reminders, &ReminderAlarm::emphasisWanted, this, &Alarms::emphasisWanted);
    connect(m_reminders, &ReminderAlarm::nextChanged, this, &Alarms::nextReminderChanged);
    connect(m_timers, &TimerAlarm::notificationWanted, this, &Alarms::notificationWanted);
    connect(m_timers, &TimerAlarm::notificationObsolete, this, &Alarms::notificationObsolete);
    connect(m_prayers, &PrayerAlarm::notificationWanted, this, &Alarms::notificationWanted);
    connect(m_friday, &FridayAlarm::notificationWanted, this, &Alarms::notificationWanted);
    auto *target = new TargetNotice{model, this};
    connect(target, &TargetNotice::notificationWanted, this, [this](const auto &request) {
        if (!m_inView.panel()) {
            emit notificationWanted(request);
        }
    });
    connect(target, &TargetNotice::notificationObsolete, this, &Alarms::notificationObsolete);
    auto *zone = new ZoneWatch{QStringLiteral("/etc/localtime"), this};
    connect(zone, &ZoneWatch::zoneChanged, &model.clock(), &DueClock::wallClockChanged);
}

std::optional<Base::Instant> Alarms::nextReminder() const { return m_reminders->next(); }

void Alarms::act(const QString &notificationId, const QString &key)
{
    if (notificationId == TargetNotice::kId) {
        actOnTarget(key);
    } else if (key == u"later") {
        m_reminders->snooze();
    } else if (key == u"again") {
        m_timers->startAgain(notificationId.mid(QLatin1String{"timer-"}.size()).toStdString());
    } else if (key == u"break") {
        m_timers->startBreak();
    } else if (notificationId.startsWith(u"timer-")) {
        emit toolWanted(QStringLiteral("timers"));
    } else if (notificationId.startsWith(u"monitor-")) {
        emit toolWanted(QStringLiteral("stats"));
    } else if (notificationId.startsWith(u"prayer-")) {
        emit toolWanted(QStringLiteral("prayer"));
    } else if (key == u"begin") {
        emit fridayBegun();
        emit toolWanted(QStringLiteral("dhikr"));
    } else if (notificationId == u"kest-friday") {
        if (key != u"dismiss") {
            emit toolWanted(QStringLiteral("friday"));
        }
    } else if (notificationId != kPreviewId) {
        emit toolWanted(QStringLiteral("dhikr"));
    }
}

void Alarms::actOnTarget(const QString &key)
{
    if (key == u"finish") {
        emit finishWanted();
    } else if (key != u"on") { // counting on needs nothing more
        emit toolWanted(QStringLiteral("dhikr"));
    }
}

void Alarms::reportShown(const QString &notificationId, bool isAllowed)
{
    const std::string status = isAllowed ? "allowed" : "denied";
    if (m_model.state().devotional.notificationStatus != status) {
        m_model.changeState([status](KestCore::NativeState &state) -> Result<void> {
            state.devotional.notificationStatus = status;
            return {};
        });
    }
    if (notificationId == kPreviewId) {
        emit previewReported(isAllowed);
    }
}

void Alarms::requestPreview()
{
    const auto preview = KestCore::previewNotification();
    emit notificationWanted({.id = kPreviewId,
                             .title = engineText(preview.title),
                             .body = engineText(preview.body),
                             .actions = {},
                             .withSound = wantsSound(m_model.state().devotional.preferences,
                                                     &KestCore::Preferences::reminderSound)});
}

} // namespace Velvetnook
