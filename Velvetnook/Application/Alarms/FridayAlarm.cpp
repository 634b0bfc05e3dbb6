// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/FridayAlarm.h"

#include "KestCore/Devotional/Content.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/FridayPrompt.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kRetry{60};

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
    const auto at = fridayDue(now, m_model.state().settings, m_model.calendar());
    if (!at || m_isSaving) {
        return std::nullopt;
    }
    return std::max(*at, m_retryAt.value_or(*at));
}

void FridayAlarm::invite(Base::Instant now)
{
    m_isSaving = true;
    const std::string today = dateText(now, m_model.calendar());
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
