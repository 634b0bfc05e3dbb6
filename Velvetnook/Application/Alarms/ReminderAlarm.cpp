// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/ReminderAlarm.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Devotional/Reminders.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/LocalDay.h"

#include <tuple>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kSnooze{600};
// An alarm that comes later than this was slept through.
constexpr Base::Seconds kLate{90};

const KestCore::Phrase &pinnedPhrase(const KestCore::NativeState &state)
{
    const KestCore::Content &content = KestCore::contentCatalogue();
    const KestCore::Phrase &selected = KestCore::phraseById(
        state.devotional.selectedDhikrId, content.dhikr, content.dhikr.front());
    if (state.pin.tool == "names") {
        return KestCore::phraseById(state.pin.item, content.names, content.names.front());
    }
    return state.pin.tool == "dhikr" || state.pin.tool == "tasbih"
               ? KestCore::phraseById(state.pin.item, content.dhikr, selected)
               : selected;
}

// What the time of a reminder depends on.
auto schedule(const KestCore::Preferences &preferences)
{
    return std::tie(preferences.reminderEnabled, preferences.reminderInterval,
                    preferences.activeHoursStart, preferences.activeHoursEnd,
                    preferences.weekdays);
}

} // namespace

ReminderAlarm::ReminderAlarm(ApplicationModel &model, std::function<bool()> isInView,
                             QObject *parent)
    : QObject{parent}, m_model{model}, m_isInView{std::move(isInView)},
      m_preferences{model.state().devotional.preferences}
{
    startFrom(model.now());
    connect(&model, &ApplicationModel::stateChanged, this, &ReminderAlarm::followPreferences);
    connect(&model, &ApplicationModel::calendarChanged, this, &ReminderAlarm::followCalendar);
    model.clock().add(
        this, [this](Base::Instant) { return m_next; },
        [this](Base::Instant now) { ring(now); });
    model.clock().add(
        this, [this](Base::Instant) { return m_snoozedUntil; },
        [this](Base::Instant) { ringAgain(); });
}

void ReminderAlarm::snooze()
{
    m_snoozedUntil = m_model.now() + kSnooze;
    m_model.clock().reschedule();
}

void ReminderAlarm::startFrom(Base::Instant after)
{
    m_after = after;
    const auto next = KestCore::nextReminder(after, m_preferences, m_model.calendar());
    if (m_next != next) {
        m_next = next;
        emit nextChanged();
    }
    m_model.clock().reschedule();
}

void ReminderAlarm::followPreferences()
{
    const KestCore::Preferences &now = m_model.state().devotional.preferences;
    const bool isSame = schedule(now) == schedule(m_preferences);
    m_preferences = now;
    if (!isSame) {
        m_snoozedUntil.reset();
        startFrom(m_model.now());
    }
}

// The same reminder on the calendar as it is now. What is due already stays so; a clock that
// was set back counts anew, and so does one that has gone on for days without a reminder.
void ReminderAlarm::followCalendar()
{
    const Base::Instant now = m_model.now();
    if (m_snoozedUntil && *m_snoozedUntil > now + kSnooze) {
        m_snoozedUntil = now + kSnooze;
    }
    if (m_next && *m_next <= now) {
        return;
    }
    startFrom(m_next && m_after <= now ? m_after : now);
    if (m_next && *m_next <= now) {
        startFrom(now); // in another zone it would have come while there was none
    }
}

void ReminderAlarm::ring(Base::Instant now)
{
    const auto due = m_next;
    // What an earlier run or an import left there says nothing of this moment.
    KestCore::DevotionalState state = m_model.state().devotional;
    state.presentation = m_isInView();
    const auto tick = KestCore::tickReminder(now, due, state, m_model.calendar());
    m_after = now;
    m_next = tick.nextReminder;
    m_snoozedUntil.reset();
    emit nextChanged();
    // One that was slept through still comes, but not outside the hours that were chosen.
    const bool isLate = due && now - *due > kLate;
    if (isLate && !KestCore::isWithinReminderWindow(now, m_preferences, m_model.calendar())) {
        return;
    }
    if (tick.action == KestCore::ReminderAction::notification) {
        emit notificationWanted(request());
    } else if (tick.action == KestCore::ReminderAction::emphasis) {
        emit emphasisWanted();
    }
}

void ReminderAlarm::ringAgain()
{
    m_snoozedUntil.reset();
    if (!endOfPause(m_model)) {
        emit notificationWanted(request());
    }
}

NotificationRequest ReminderAlarm::request() const
{
    const KestCore::NativeState &state = m_model.state();
    const KestCore::Preferences &preferences = state.devotional.preferences;
    const auto wanted = KestCore::reminderNotification(pinnedPhrase(state), preferences);
    return {.id = QString::fromStdString(wanted.identifier),
            .title = engineText(wanted.title),
            .body = QString::fromStdString(wanted.body),
            .actions = {{.key = QStringLiteral("count"), .label = tr("Count")},
                        {.key = QStringLiteral("later"), .label = tr("Later")}},
            .withSound = wantsSound(preferences, &KestCore::Preferences::reminderSound)};
}

} // namespace Velvetnook
