// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/EventWatch.h"

#include "KestCore/Tools/CalendarSources.h"
#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/ToolChoice.h"

#include <QDateTime>

#include <algorithm>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr Base::Seconds kDay{86'400};
constexpr const char *kStripKey = "calendar.strip";

} // namespace

bool showsEventInStrip(const KestCore::Settings &settings)
{
    const auto found = settings.find(kStripKey);
    return found == settings.end() || found->second != "false";
}

void showEventInStrip(ApplicationModel &model, bool isShown)
{
    model.changeSetting(kStripKey, isShown ? "true" : "false");
}

EventWatch::EventWatch(ApplicationModel &model, QObject *parent)
    : QObject{parent}, m_model{model}
{
    connect(&model, &ApplicationModel::choicesChanged, this, &EventWatch::follow);
    connect(&model, &ApplicationModel::calendarChanged, this, &EventWatch::read);
    connect(&model.clock(), &DueClock::wallClockChanged, this, &EventWatch::read);
    connect(&m_watch, &FileWatch::changed, this, &EventWatch::read);
    model.clock().add(
        this, [this](Base::Instant) { return nextReading(); },
        [this](Base::Instant) { read(); });
    follow();
}

void EventWatch::follow()
{
    const KestCore::NativeState &state = m_model.state();
    const bool isWanted = showsEventInStrip(state.settings) && isToolOn(state, "calendar");
    auto paths =
        isWanted ? KestCore::calendarSources(state.settings) : std::vector<std::string>{};
    if (std::exchange(m_paths, std::move(paths)) != m_paths) {
        read();
    }
}

void EventWatch::read()
{
    if (m_paths.empty()) {
        m_watch.stop();
        m_readAt.reset();
        m_isAskedAgain = false;
        return take({});
    }
    m_isAskedAgain = m_isReading;
    if (std::exchange(m_isReading, true)) {
        return;
    }
    m_readAt = m_model.now();
    // One that has just begun is still told of.
    const CalendarQuestion question{.sources = m_paths,
                                    .calendar = m_model.calendar(),
                                    .now = m_model.now() - kEventNowTime};
    m_side.ask(
        this, [question](CalendarReader &reader) { return reader.read(question); },
        [this, asked = m_paths,
         since = QDateTime::currentDateTime()](const CalendarReading &reading) {
            m_isReading = false;
            if (asked == m_paths) {
                m_watch.watch(reading.places, since);
                take(reading);
            }
            if (std::exchange(m_isAskedAgain, false)) {
                read();
            } else { // it is hours until the next time
                m_side.tell(this, [](CalendarReader &reader) { reader.forget(); });
            }
        });
}

void EventWatch::take(const CalendarReading &reading)
{
    std::optional<UpcomingEvent> next;
    if (reading.next) {
        next = UpcomingEvent{.title = QString::fromStdString(reading.next->title),
                             .start = reading.next->start};
    }
    m_model.clock().reschedule();
    if (std::exchange(m_next, std::move(next)) != m_next) {
        emit changed();
    }
}

std::optional<Base::Instant> EventWatch::nextReading() const
{
    if (!m_readAt) {
        return std::nullopt;
    }
    const Base::Instant tomorrow = *m_readAt + kDay;
    if (!m_next || m_next->start + kEventNowTime <= *m_readAt) { // the answer is on its way
        return tomorrow;
    }
    return std::min(m_next->start + kEventNowTime, tomorrow);
}

} // namespace Velvetnook
