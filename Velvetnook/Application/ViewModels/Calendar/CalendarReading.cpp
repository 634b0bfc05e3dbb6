// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Calendar/CalendarReading.h"

#include "CalendarFiles/SourceCheck.h"
#include "Velvetnook/Application/FileWatch.h"

#include <chrono>
#include <utility>

namespace Velvetnook
{

namespace
{

constexpr std::chrono::days kLookAhead{30}; // in which the next event is looked for

} // namespace

CalendarReading CalendarReader::read(const CalendarQuestion &question)
{
    using CalendarFiles::startOfDay;
    CalendarReading reading{.firstDay = question.firstDay};
    if (!m_library) {
        auto opened = CalendarFiles::CalendarLibrary::open();
        if (!opened) {
            reading.failure = opened.error().message;
            return reading;
        }
        m_library.emplace(*std::move(opened));
    }
    m_library->refresh(question.sources);
    const auto agenda = m_library->agenda(
        question.calendar,
        {.from = startOfDay(question.calendar, question.firstDay),
         .to = startOfDay(question.calendar, question.firstDay + question.dayCount)});
    reading.days = CalendarFiles::agendaDays(agenda, question.firstDay, question.dayCount);
    reading.broken = agenda.broken;
    reading.isWhole = agenda.isWhole;
    reading.next = CalendarFiles::nextEvent(
        m_library->agenda(question.calendar,
                          {.from = question.now, .to = question.now + kLookAhead}),
        question.now);
    reading.reports = m_library->reports();
    constexpr auto kMost = static_cast<std::size_t>(FileWatch::kMost);
    for (const std::string &place : CalendarFiles::watchPlaces(question.sources, kMost)) {
        reading.places.push_back(QString::fromStdString(place));
    }
    return reading;
}

} // namespace Velvetnook
