// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/Instant.h"

#include <QObject>

#include <functional>
#include <optional>
#include <vector>

class QSocketNotifier;

namespace Velvetnook
{

// Tells the time. The one of a program asks the system; a test or a picture has its own.
using TimeSource = std::function<Base::Instant()>;

// The one clock of the application. It sleeps until the first of its alarms is due, on the
// wall clock: a suspend, or a clock that is set, wakes it and every alarm is asked again.
class DueClock : public QObject
{
    Q_OBJECT

public:
    // When the alarm wants to be called next, seen from `now`; nothing: not at all.
    using Due = std::function<std::optional<Base::Instant>(Base::Instant now)>;
    // Called once `now` has reached what `Due` said.
    using Handler = std::function<void(Base::Instant now)>;

    explicit DueClock(TimeSource now, QObject *parent = nullptr);
    ~DueClock() override;
    DueClock(const DueClock &) = delete;
    DueClock &operator=(const DueClock &) = delete;

    Base::Instant now() const { return m_now(); }

    // The alarm lives as long as `owner`.
    void add(QObject *owner, Due due, Handler handler);

    // Asks every alarm again; call it when what they depend on has changed. Cheap: the asking
    // is done once, when the present event is over.
    void reschedule();

    // Calls every handler that is due and sets the next alarm.
    void tick();

signals:
    // The wall clock was set or the machine has slept.
    void wallClockChanged();

private:
    struct Alarm {
        QObject *owner;
        Due due;
        Handler handler;
        std::optional<Base::Instant> at;
    };

    void arm();
    void readTimer();
    void followWallClock();

    TimeSource m_now;
    std::vector<Alarm> m_alarms;
    int m_timer = -1; // a timerfd
    QSocketNotifier *m_notifier = nullptr;
    bool m_isScheduled = false;
};

} // namespace Velvetnook
