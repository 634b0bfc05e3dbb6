// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/DueClock.h"

#include <QSocketNotifier>
#include <QTimer>

#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <utility>

namespace Velvetnook
{

DueClock::DueClock(TimeSource now, QObject *parent)
    : QObject{parent}, m_now{std::move(now)},
      m_timer{timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)}
{
    if (m_timer != -1) {
        m_notifier = new QSocketNotifier{m_timer, QSocketNotifier::Read, this};
        connect(m_notifier, &QSocketNotifier::activated, this, &DueClock::readTimer);
    }
    reschedule();
}

DueClock::~DueClock()
{
    delete m_notifier;
    if (m_timer != -1) {
        close(m_timer);
    }
}

void DueClock::add(QObject *owner, Due due, Handler handler)
{
    m_alarms.push_back({.owner = owner,
                        .due = std::move(due),
                        .handler = std::move(handler),
                        .at = std::nullopt});
    connect(owner, &QObject::destroyed, this, [this, owner] {
        std::erase_if(m_alarms, [owner](const Alarm &alarm) { return alarm.owner == owner; });
    });
    reschedule();
}

void DueClock::reschedule()
{
    if (std::exchange(m_isScheduled, true)) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isScheduled = false;
            for (Alarm &alarm : m_alarms) {
                alarm.at = alarm.due(m_now());
            }
            tick();
        },
        Qt::QueuedConnection);
}

void DueClock::tick()
{
    const Base::Instant now = m_now();
    // A handler may add alarms: those are asked by the reschedule that adding brings.
    const std::size_t count = m_alarms.size();
    for (std::size_t index = 0; index < std::min(count, m_alarms.size()); ++index) {
        const auto at = m_alarms[index].at;
        if (!at || *at > now) {
            continue;
        }
        const Handler handler = m_alarms[index].handler;
        m_alarms[index].at.reset(); // set again below, also when the handler says nothing new
        handler(now);
        if (index < m_alarms.size()) {
            m_alarms[index].at = m_alarms[index].due(now);
        }
    }
    arm();
}

// The kernel cancels an absolute alarm when the clock is set, so no polling is needed to see
// it.
void DueClock::arm()
{
    std::optional<Base::Instant> first;
    for (const Alarm &alarm : m_alarms) {
        if (alarm.at && (!first || *alarm.at < *first)) {
            first = alarm.at;
        }
    }
    // Without an alarm one far away stands in, so that a set clock is still seen.
    const double wait = first ? (*first - m_now()).count() : 86'400.0;
    // The system's clock, as a test's own may tell another time. What is due already comes with
    // the next round of the loop, never in a tight circle.
    const double at = Base::wallClock().time_since_epoch().count() + std::max(wait, 0.001);
    double whole = 0;
    const double fraction = std::modf(at, &whole);
    const itimerspec alarm{.it_interval = {},
                           .it_value = {.tv_sec = static_cast<std::int64_t>(whole),
                                        .tv_nsec = static_cast<std::int64_t>(fraction * 1e9)}};
    const int flags = TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET;
    // This answer, too, can be the one that tells of a clock that was set: the alarm is armed
    // all the same, and a read says nothing of it any more.
    if (timerfd_settime(m_timer, flags, &alarm, nullptr) == -1 && errno == ECANCELED) {
        QMetaObject::invokeMethod(this, &DueClock::followWallClock, Qt::QueuedConnection);
    }
}

void DueClock::followWallClock()
{
    emit wallClockChanged();
    reschedule();
}

void DueClock::readTimer()
{
    std::uint64_t expirations = 0;
    const auto got = read(m_timer, &expirations, sizeof expirations);
    if (got == -1 && errno == ECANCELED) {
        followWallClock();
        return;
    }
    tick();
}

} // namespace Velvetnook
