// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/Alarms/TimerAlarm.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolTitles.h"

#include <algorithm>

namespace Velvetnook
{

namespace
{

using KestCore::Timer;

constexpr Base::Seconds kRetry{60};

std::string idOf(const Timer &timer) { return timer.record.id; }

QString notificationId(const std::string &timerId)
{
    return QString::fromStdString("timer-" + timerId);
}

} // namespace

TimerAlarm::TimerAlarm(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}, m_timers{timersIn(model)}
{
    connect(&model, &ApplicationModel::recordsChanged, this, &TimerAlarm::followRecords);
    // A run that began in the future of a clock that was set back begins anew; saved, it does
    // so only once.
    connect(&model.clock(), &DueClock::wallClockChanged, this, [this] {
        m_retryAt.reset();
        settle();
    });
    model.clock().add(
        this, [this](Base::Instant now) { return due(now); },
        [this](Base::Instant) { settle(); });
    if (!m_timers.empty()) {
        settle(); // ends that passed while the program was off, and a clock that was set then
    }
}

void TimerAlarm::followRecords()
{
    m_timers = timersIn(m_model);
    std::erase_if(m_announced, [this](const std::string &id) {
        const auto found = std::ranges::find(m_timers, id, idOf);
        const bool stands = found != m_timers.end() && found->state.notified;
        const bool repeats = found != m_timers.end() && found->state.mode == "hydration";
        if (!stands && !repeats) {
            emit notificationObsolete(notificationId(id));
        }
        return !stands;
    });
}

std::optional<Base::Instant> TimerAlarm::due(Base::Instant now) const
{
    if (m_isSettling || m_timers.empty() || m_retryAt) {
        return m_isSettling ? std::nullopt : m_retryAt;
    }
    const auto ends = KestCore::timerSchedule(m_timers, now);
    return ends.empty() ? std::nullopt : std::optional{ends.front().at};
}

void TimerAlarm::settle()
{
    m_settlesAgain = m_isSettling; // the step on its way began before what calls for this one
    if (m_isSettling) {
        return;
    }
    m_isSettling = true;
    settleEnds(m_model, [this](const auto &posted, const auto &result) {
        m_isSettling = false;
        finish(posted, result);
        if (m_settlesAgain) {
            settle();
        }
        m_model.clock().reschedule();
    });
}

void TimerAlarm::finish(const std::vector<KestCore::TimerNotification> &posted,
                        const Result<void> &result)
{
    m_retryAt = result ? std::nullopt : std::optional{m_model.now() + kRetry};
    if (!result && !m_hasToldFailure) {
        emit m_model.failed(engineText(result.error().message));
    }
    m_hasToldFailure = !result;
    for (const KestCore::TimerNotification &notification : posted) {
        m_announced.push_back(notification.id.substr(std::string_view{"timer-"}.size()));
        emit notificationWanted(request(notification));
    }
}

NotificationRequest TimerAlarm::request(const KestCore::TimerNotification &posted) const
{
    NotificationRequest wanted{.id = QString::fromStdString(posted.id),
                               .title = engineText(posted.title),
                               .body = engineText(posted.body),
                               .actions = {},
                               .withSound =
                                   wantsSound(m_model.state().devotional.preferences,
                                              &KestCore::Preferences::completionSound)};
    const auto timer = std::ranges::find(
        m_timers, posted.id, [](const Timer &each) { return "timer-" + idOf(each); });
    const bool isKnown = timer != m_timers.end();
    if (isKnown) {
        wanted.body = tr("%1 finished.").arg(timerTitle(*timer, Formatting{m_model}));
    }
    if (isKnown && timer->state.mode == "pomodoro") {
        wanted.actions.push_back({.key = QStringLiteral("break"), .label = tr("Take a break")});
    }
    if (isKnown && timer->state.mode != "hydration") {
        wanted.actions.push_back({.key = QStringLiteral("again"), .label = tr("Start again")});
    }
    return wanted;
}

void TimerAlarm::startAgain(const std::string &timerId)
{
    changeTimer(m_model, timerId, PastEnd::settled,
                [](KestCore::TimerState &timer, Base::Instant now) -> Result<void> {
                    KestCore::resumeTimer(timer, now);
                    return {};
                });
}

void TimerAlarm::startBreak()
{
    beginTimer(m_model,
               {.mode = KestCore::TimerMode::countdown,
                .minutes = KestCore::configuredMinutes("break", m_model.state().settings),
                .title = tr("Break").toStdString()});
}

} // namespace Velvetnook
