// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/FridayAlarm.h"

#include "KestCore/Devotional/Content.h"
#include "KestCore/Models/TimeOfDay.h"
#include "Velvetnook/Application/ApplicationModel.h"

#include <chrono>
#include <cmath>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kRetry{60};
constexpr int kFriday = 5;
constexpr int kUsualMinute = 9 * 60;

std::string dateOf(const KestCore::LocalTime &local)
{
    return QStringLiteral("%1-%2-%3")
        .arg(local.year, 4, 10, QLatin1Char{'0'})
        .arg(local.month, 2, 10, QLatin1Char{'0'})
        .arg(local.day, 2, 10, QLatin1Char{'0'})
        .toStdString();
}

} // namespace

FridayAlarm::FridayAlarm(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    connect(&model.clock(), &DueClock::wallClockChanged, this, [this] { m_retryAt.reset(); });
    // The time of each day is found on that day: the change of date asks again.
    connect(&model, &ApplicationModel::calendarChanged, &model.clock(), &DueClock::reschedule);
    model.clock().add(
        this, [this](Base::Instant now) { return due(now); },
        [this](Base::Instant now) { invite(now); });
}

std::optional<Base::Instant> FridayAlarm::due(Base::Instant now) const
{
    const KestCore::LocalTime local = m_model.calendar().at(now);
    const bool isOpen = m_model.isOn("friday.enabled") && local.weekday == kFriday &&
                        m_model.setting("friday.lastShown") != dateOf(local);
    if (!isOpen || m_isSaving) {
        return std::nullopt;
    }
    const int minute =
        KestCore::minuteOfDay(m_model.setting("friday.time")).value_or(kUsualMinute);
    const int past = local.hour * 60 + local.minute;
    if (past >= minute) {
        return m_retryAt.value_or(now);
    }
    // An hour that a clock change skips or repeats moves it by that hour at most.
    const std::chrono::seconds left{(minute - past) * 60 - local.second};
    const double fraction = Base::seconds1970(now) - std::floor(Base::seconds1970(now));
    return now + Base::Seconds{left} - Base::Seconds{fraction};
}

void FridayAlarm::invite(Base::Instant now)
{
    m_isSaving = true;
    const std::string today = dateOf(m_model.calendar().at(now));
    m_model.changeState(
        [today](KestCore::NativeState &state) -> Result<void> {
            state.settings["friday.lastShown"] = today;
            return {};
        },
        [this, now](const Result<void> &done) {
            m_isSaving = false;
            m_retryAt = done ? std::nullopt : std::optional{now + kRetry};
            if (done) {
                emit notificationWanted(request());
            }
            m_model.clock().reschedule();
        });
}

NotificationRequest FridayAlarm::request() const
{
    const auto &phrases = KestCore::contentCatalogue().dhikr;
    const auto &phrase = KestCore::phraseById("salawat", phrases, phrases.front());
    return {.id = QStringLiteral("kest-friday"),
            .title = tr("Friday"),
            .body = QString::fromStdString(phrase.arabic + "\n" +
                                           phrase.translation.value_or(std::string{})),
            .actions = {{.key = QStringLiteral("begin"), .label = tr("Begin counting")},
                        {.key = QStringLiteral("dismiss"), .label = tr("Not today")}},
            .withSound = false};
}

} // namespace Velvetnook
