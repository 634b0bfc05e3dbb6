// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/Formatting.h"
#include "Velvetnook/Application/TimerSteps.h"
#include "Velvetnook/Application/ToolTitles.h"
#include "Velvetnook/Application/ViewModels/TimersViewModel.h"

#include <algorithm>
#include <cmath>

// What the timers say: the texts of the rows, and the large figure of the chosen one.
namespace Velvetnook
{

namespace
{

using KestCore::Timer;
using KestCore::TimerState;

constexpr double kMinute = 60;
// The ring is drawn anew when it has moved by a step that the eye can see.
constexpr double kRingSteps = 360;

bool isStopwatch(const TimerState &timer) { return !KestCore::countsDown(timer); }

// What the large figure stands for, in whole seconds: what is left of a countdown is rounded
// up, what a stopwatch has counted down.
double shownSeconds(const TimerState &timer, Base::Instant now)
{
    const double seconds = KestCore::remaining(timer, now);
    return isStopwatch(timer) ? std::floor(seconds) : std::ceil(seconds);
}

// When a number of such units that is shown changes next.
Base::Instant nextChange(const TimerState &timer, Base::Instant now, double unit)
{
    const double seconds = KestCore::remaining(timer, now);
    const double left = isStopwatch(timer) ? (std::floor(seconds / unit) + 1) * unit - seconds
                                           : seconds - (std::ceil(seconds / unit) - 1) * unit;
    return now + Base::Seconds{left};
}

} // namespace

QString TimersViewModel::titleOf(const Timer &timer) const
{
    return timerTitle(timer, m_formatting);
}

QString TimersViewModel::noteOf(const Timer &timer) const
{
    const TimerState &state = timer.state;
    const Base::Instant now = m_model.now();
    const QString shown = m_formatting.duration(shownSeconds(state, now));
    if (isStopwatch(state)) {
        if (state.running) {
            return tr("Running since %1").arg(m_formatting.time(state.started.value_or(now)));
        }
        return state.elapsed > 0 ? tr("Paused at %1").arg(shown) : tr("Not started");
    }
    if (KestCore::hasEnded(state, now)) {
        return state.running
                   ? tr("Finished at %1").arg(m_formatting.time(state.deadline.value_or(now)))
                   : tr("Finished");
    }
    if (state.running && state.mode == "hydration") {
        return tr("Drink water · in %1")
            .arg(m_formatting.remaining(KestCore::remaining(state, now)));
    }
    const QString length = m_formatting.remaining(state.duration);
    if (state.running) {
        return tr("%1 · running").arg(length);
    }
    return state.elapsed > 0 ? tr("Paused at %1").arg(shown) : length;
}

QString TimersViewModel::title() const
{
    const Timer *timer = chosen();
    const auto &rows = m_rows.rows();
    return timer == nullptr ? rows[static_cast<std::size_t>(chosenRow())].title
                            : titleOf(*timer);
}

QString TimersViewModel::timeText() const
{
    if (const Timer *timer = chosen()) {
        return m_formatting.duration(shownSeconds(timer->state, m_model.now()));
    }
    const std::string mode = m_chosen.section(u'-', 1).toStdString();
    return m_formatting.duration(mode == "stopwatch" ? 0 : minutesOf(mode) * kMinute);
}

QString TimersViewModel::tone() const
{
    const Timer *timer = chosen();
    if (timer == nullptr) {
        return QStringLiteral("idle");
    }
    const TimerState &state = timer->state;
    if (KestCore::hasEnded(state, m_model.now())) {
        return QStringLiteral("finished");
    }
    if (state.running) {
        return QStringLiteral("running");
    }
    return state.elapsed > 0 ? QStringLiteral("paused") : QStringLiteral("idle");
}

QString TimersViewModel::note() const
{
    const Timer *timer = chosen();
    const QString now = tone();
    if (now == u"idle") {
        return tr("not started");
    }
    if (now == u"paused") {
        return tr("paused");
    }
    const Base::Instant at = timer->state.deadline.value_or(m_model.now());
    if (now == u"finished") {
        return timer->state.deadline ? tr("finished %1").arg(m_formatting.time(at))
                                     : tr("finished");
    }
    return isStopwatch(timer->state)
               ? tr("since %1").arg(m_formatting.time(timer->state.started.value_or(at)))
               : tr("ends %1").arg(m_formatting.time(at));
}

QString TimersViewModel::actionText() const
{
    const QString now = tone();
    if (now == u"running") {
        return tr("Pause");
    }
    if (now == u"paused") {
        return tr("Resume");
    }
    return now == u"finished" ? tr("Start again") : tr("Start");
}

QString TimersViewModel::actionIcon() const
{
    return tone() == u"running" ? QStringLiteral("pause") : QStringLiteral("play");
}

bool TimersViewModel::canAdjust() const
{
    const Timer *timer = chosen();
    return timer == nullptr ? m_chosen != u"new-stopwatch" : !isStopwatch(timer->state);
}

bool TimersViewModel::offersBreak() const
{
    const Timer *timer = chosen();
    return timer != nullptr && timer->state.mode == "pomodoro" && tone() == u"finished";
}

QString TimersViewModel::breakText() const
{
    const double minutes = KestCore::configuredMinutes("break", m_model.state().settings);
    return tr("Break %1").arg(m_formatting.remaining(minutes * kMinute));
}

QString TimersViewModel::spoken() const
{
    return QStringLiteral("%1, %2, %3").arg(title(), timeText(), note());
}

QString TimersViewModel::setTitle() const { return chosen() == nullptr ? QString{} : title(); }

QString TimersViewModel::setLength() const { return timeText(); }

void TimersViewModel::followProgress()
{
    double value = 0;
    if (const Timer *timer = chosen(); timer != nullptr && !isStopwatch(timer->state)) {
        const double whole = std::max(timer->state.duration, 1.0);
        const double gone = whole - KestCore::remaining(timer->state, m_model.now());
        value = std::round(std::clamp(gone / whole, 0.0, 1.0) * kRingSteps) / kRingSteps;
    }
    if (value != m_progress) {
        m_progress = value;
        emit progressChanged();
    }
}

std::optional<Base::Instant> TimersViewModel::nextTick(Base::Instant shown) const
{
    std::optional<Base::Instant> next;
    for (const Timer &timer : m_timers) {
        const TimerState &state = timer.state;
        const bool isLarge = QString::fromStdString(timer.record.id) == m_chosen;
        const bool countsMinutes = state.mode == "hydration";
        const bool runs = state.running && !KestCore::hasEnded(state, shown);
        if (runs && (isLarge || countsMinutes)) {
            const Base::Instant at = nextChange(state, shown, isLarge ? 1 : kMinute);
            next = std::min(next.value_or(at), at);
        }
    }
    return next;
}

// Only the large figure tells seconds: of the rows the list repeats what has changed.
void TimersViewModel::tick()
{
    const Timer *timer = chosen();
    if (timer != nullptr && KestCore::hasEnded(timer->state, m_model.now())) {
        refresh();
        return;
    }
    showRows();
    followProgress();
    emit ticked();
}

} // namespace Velvetnook
