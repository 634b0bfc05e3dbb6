// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/RemindersViewModel.h"

#include "KestCore/Models/TimeOfDay.h"
#include "Velvetnook/Application/Alarms.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/FridayPrompt.h"
#include "Velvetnook/Application/LocalDay.h"
#include "Velvetnook/Application/QtText.h"
#include "Velvetnook/Application/TimerSteps.h"

#include <QVariantMap>

#include <fmt/format.h>

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr qint64 kMostMinutes = 1440;

std::string timeText(int minute)
{
    return fmt::format("{:02}:{:02}", minute / 60, minute % 60);
}

void choose(std::vector<std::int64_t> &weekdays, int weekday, bool isChosen)
{
    std::erase(weekdays, weekday);
    if (isChosen) {
        weekdays.push_back(weekday);
        std::ranges::sort(weekdays);
    }
}

} // namespace

RemindersViewModel::RemindersViewModel(ApplicationModel &model, const Formatting &formatting,
                                       Alarms &alarms, QObject *parent)
    : QObject{parent}, m_model{model}, m_formatting{formatting}, m_alarms{alarms}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &RemindersViewModel::changed);
    connect(&model, &ApplicationModel::calendarChanged, this, &RemindersViewModel::changed);
    connect(&alarms, &Alarms::nextReminderChanged, this, &RemindersViewModel::changed);
    connect(&alarms, &Alarms::previewReported, this, &RemindersViewModel::changed);
    model.clock().add(
        this, [this](Base::Instant) { return endOfPause(m_model); },
        [this](Base::Instant) { emit changed(); });
}

const KestCore::Preferences &RemindersViewModel::preferences() const
{
    return m_model.state().devotional.preferences;
}

bool RemindersViewModel::reminderEnabled() const { return preferences().reminderEnabled; }
int RemindersViewModel::interval() const
{
    return static_cast<int>(preferences().reminderInterval);
}
QString RemindersViewModel::intervalDigits() const
{
    return m_formatting.digits(QString::number(interval()));
}
QString RemindersViewModel::activeStart() const
{
    return m_formatting.digits(QString::fromStdString(preferences().activeHoursStart));
}
QString RemindersViewModel::activeEnd() const
{
    return m_formatting.digits(QString::fromStdString(preferences().activeHoursEnd));
}
QVariantList RemindersViewModel::days() const
{
    const QLocale locale = m_formatting.locale();
    const auto &chosen = preferences().weekdays;
    QVariantList days;
    for (int weekday = 0; weekday < 7; ++weekday) {
        const int isoDay = weekday == 0 ? 7 : weekday;
        const QString letter = locale.standaloneDayName(isoDay, QLocale::NarrowFormat);
        days.append(QVariantMap{
            {QStringLiteral("value"), weekday},
            {QStringLiteral("letter"), letter},
            {QStringLiteral("name"), locale.standaloneDayName(isoDay)},
            {QStringLiteral("chosen"), std::ranges::find(chosen, weekday) != chosen.end()}});
    }
    return days;
}

QString RemindersViewModel::pinnedReminder() const
{
    return QString::fromStdString(preferences().pinnedReminder);
}
QString RemindersViewModel::rotationDigits() const
{
    return m_formatting.digits(QString::number(preferences().rotationMinutes));
}
bool RemindersViewModel::reminderSound() const { return preferences().reminderSound; }
bool RemindersViewModel::soundEnabled() const { return preferences().soundEnabled; }
bool RemindersViewModel::timersAreAnnounced() const
{
    return m_model.setting(kTimerNotifications) != "false";
}
bool RemindersViewModel::fridayEnabled() const { return m_model.isOn("friday.enabled"); }
QString RemindersViewModel::fridayTime() const
{
    const int minute =
        KestCore::minuteOfDay(m_model.setting("friday.time")).value_or(kFridayMinute);
    return m_formatting.digits(QString::fromStdString(timeText(minute)));
}

QString RemindersViewModel::nextText() const
{
    if (!reminderEnabled()) {
        return tr("Reminders are off.");
    }
    if (preferences().weekdays.empty()) {
        return tr("No day is chosen, so no reminder comes.");
    }
    const auto next = m_alarms.nextReminder();
    if (!next) {
        return tr("No reminder comes in the next days.");
    }
    const KestCore::Calendar &calendar = m_model.calendar();
    const QString time = m_formatting.time(*next);
    return calendar.dayNumber(*next) == calendar.dayNumber(m_model.now())
               ? tr("Next reminder at %1").arg(time)
               : tr("Next reminder on %1 at %2").arg(m_formatting.date(*next), time);
}

bool RemindersViewModel::isPaused() const { return endOfPause(m_model).has_value(); }

QString RemindersViewModel::pausedText() const
{
    const auto end = endOfPause(m_model);
    if (!end) {
        return {};
    }
    const KestCore::Calendar &calendar = m_model.calendar();
    const QString time = m_formatting.time(*end);
    return calendar.dayNumber(*end) == calendar.dayNumber(m_model.now())
               ? tr("Paused until %1").arg(time)
               : tr("Paused until %1 at %2").arg(m_formatting.date(*end), time);
}

QString RemindersViewModel::testText() const
{
    const std::string &status = m_model.state().devotional.notificationStatus;
    if (status == "allowed") {
        return tr("Notifications allowed.");
    }
    return status == "denied" ? tr("Notifications denied. Enable Velvetnook in System Settings "
                                   "→ Notifications.")
                              : QString{};
}

bool RemindersViewModel::testIsDenied() const
{
    return m_model.state().devotional.notificationStatus == "denied";
}

void RemindersViewModel::change(std::function<void(KestCore::DevotionalState &)> edit)
{
    m_model.changeState([edit = std::move(edit)](KestCore::NativeState &state) -> Result<void> {
        edit(state.devotional);
        return {};
    });
}

QString RemindersViewModel::setMinutes(const QString &text,
                                       std::function<void(KestCore::Preferences &, qint64)> set)
{
    bool isNumber = false;
    const qint64 minutes = latinDigits(text.trimmed()).toLongLong(&isNumber);
    if (!isNumber || minutes < 1 || minutes > kMostMinutes) {
        return m_formatting.digits(tr("Choose between 1 and 1440 minutes."));
    }
    change([set = std::move(set), minutes](KestCore::DevotionalState &state) {
        set(state.preferences, minutes);
    });
    return {};
}

QString RemindersViewModel::setHours(const QString &text, std::function<void(std::string)> set)
{
    const auto minute = KestCore::minuteOfDay(latinDigits(text.trimmed()).toStdString());
    if (!minute) {
        return m_formatting.digits(tr("Write a time such as 09:00."));
    }
    set(timeText(*minute));
    return {};
}

QString RemindersViewModel::setReminderEnabled(bool isOn)
{
    change([isOn](auto &state) { state.preferences.reminderEnabled = isOn; });
    return {};
}

QString RemindersViewModel::setInterval(const QString &minutes)
{
    return setMinutes(
        minutes, [](auto &preferences, qint64 value) { preferences.reminderInterval = value; });
}

QString RemindersViewModel::setActiveStart(const QString &time)
{
    return setHours(time, [this](std::string written) {
        change([written = std::move(written)](auto &state) {
            state.preferences.activeHoursStart = written;
        });
    });
}

QString RemindersViewModel::setActiveEnd(const QString &time)
{
    return setHours(time, [this](std::string written) {
        change([written = std::move(written)](auto &state) {
            state.preferences.activeHoursEnd = written;
        });
    });
}

QString RemindersViewModel::setWeekday(int weekday, bool isChosen)
{
    if (weekday < 0 || weekday > 6) {
        return tr("There is no such day.");
    }
    change([weekday, isChosen](auto &state) {
        choose(state.preferences.weekdays, weekday, isChosen);
    });
    return {};
}

QString RemindersViewModel::setPinnedReminder(const QString &value)
{
    if (value != u"nothing" && value != u"emphasis") {
        return tr("There is no such choice.");
    }
    change(
        [text = value.toStdString()](auto &state) { state.preferences.pinnedReminder = text; });
    return {};
}

QString RemindersViewModel::setRotationMinutes(const QString &minutes)
{
    return setMinutes(
        minutes, [](auto &preferences, qint64 value) { preferences.rotationMinutes = value; });
}

QString RemindersViewModel::setReminderSound(bool isOn)
{
    change([isOn](auto &state) { state.preferences.reminderSound = isOn; });
    return {};
}

QString RemindersViewModel::setSoundEnabled(bool isOn)
{
    change([isOn](auto &state) { state.preferences.soundEnabled = isOn; });
    return {};
}

void RemindersViewModel::setTimersAreAnnounced(bool isOn)
{
    m_model.changeSetting(kTimerNotifications, isOn ? "true" : "false");
}

void RemindersViewModel::setFridayEnabled(bool isOn)
{
    m_model.changeSetting("friday.enabled", isOn ? "true" : "false");
}

QString RemindersViewModel::setFridayTime(const QString &time)
{
    return setHours(time, [this](std::string written) {
        m_model.changeSetting("friday.time", std::move(written));
    });
}

void RemindersViewModel::pauseForHours(int hours)
{
    const Base::Instant until = m_model.now() + Base::Seconds{std::max(hours, 1) * 3600.0};
    change([until](auto &state) { state.pausedUntil = Base::milliseconds1970(until); });
}

void RemindersViewModel::pauseUntilTomorrow()
{
    const int start = KestCore::minuteOfDay(preferences().activeHoursStart).value_or(0);
    const auto &calendar = m_model.calendar();
    const Base::Instant now = m_model.now();
    const Base::Instant until = instantOf(calendar.dayNumber(now) + 1, start, calendar, now);
    change([until](auto &state) { state.pausedUntil = Base::milliseconds1970(until); });
}

QString RemindersViewModel::pauseUntil(const QString &time)
{
    const auto minute = KestCore::minuteOfDay(latinDigits(time.trimmed()).toStdString());
    if (!minute) {
        return m_formatting.digits(tr("Write a time such as 09:00."));
    }
    const Base::Instant now = m_model.now();
    const auto &calendar = m_model.calendar();
    const std::int64_t today = calendar.dayNumber(now);
    Base::Instant until = instantOf(today, *minute, calendar, now);
    if (until <= now) {
        until = instantOf(today + 1, *minute, calendar, now);
    }
    change([until](auto &state) { state.pausedUntil = Base::milliseconds1970(until); });
    return {};
}

void RemindersViewModel::endPause()
{
    change([](auto &state) { state.pausedUntil.reset(); });
}

void RemindersViewModel::sendTest() { m_alarms.requestPreview(); }

} // namespace Velvetnook
