// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Velvetnook/Application/FileWatch.h"
#include "Velvetnook/Application/SideThread.h"
#include "Velvetnook/Application/ViewModels/Calendar/CalendarReading.h"

#include <QObject>
#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

class ApplicationModel;

inline constexpr Base::Seconds kEventNowTime{60}; // so long an event counts as now

// Whether the strip tells of the next event, which it does until it is told not to.
bool showsEventInStrip(const KestCore::Settings &settings);
void showEventInStrip(ApplicationModel &model, bool isShown);

// An event with a time of day.
struct UpcomingEvent {
    QString title{}; // may be empty
    Base::Instant start{};

    bool operator==(const UpcomingEvent &) const = default;
};

// The event of the user's calendar files that comes next, for the strip. The files are read
// when they or the choice of them change, a minute after an event has begun, and once a day;
// not at all while the strip is not to show it.
class EventWatch : public QObject
{
    Q_OBJECT

public:
    explicit EventWatch(ApplicationModel &model, QObject *parent = nullptr);

    const std::optional<UpcomingEvent> &next() const { return m_next; }

signals:
    void changed();

private:
    void follow();
    void read();
    void take(const CalendarReading &reading);
    std::optional<Base::Instant> nextReading() const;

    ApplicationModel &m_model;
    std::vector<std::string> m_paths; // empty: there is nothing to look for
    std::optional<UpcomingEvent> m_next;
    std::optional<Base::Instant> m_readAt;
    bool m_isReading = false;
    bool m_isAskedAgain = false; // while it was reading
    FileWatch m_watch;
    SideThread<CalendarReader> m_side; // last: it is waited for before what it tells goes
};

} // namespace Velvetnook
