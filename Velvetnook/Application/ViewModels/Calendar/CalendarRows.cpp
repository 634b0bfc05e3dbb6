// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Velvetnook/Application/ViewModels/Calendar/CalendarRows.h"

#include "Velvetnook/Application/ApplicationModel.h"
#include "Velvetnook/Application/EngineText.h"
#include "Velvetnook/Application/FileGlance.h"
#include "Velvetnook/Application/Formatting.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <chrono>

namespace Velvetnook
{

namespace
{

using CalendarFiles::Occurrence;
using CalendarFiles::SourceReport;

constexpr std::array kDayRoles{
    RowRole<DayCell>{"day", [](const DayCell &cell) { return QVariant{cell.day}; }},
    RowRole<DayCell>{"islamic", [](const DayCell &cell) { return QVariant{cell.islamic}; }},
    RowRole<DayCell>{"name", [](const DayCell &cell) { return QVariant{cell.name}; }},
    RowRole<DayCell>{"isInMonth", [](const DayCell &cell) { return QVariant{cell.isInMonth}; }},
    RowRole<DayCell>{"isToday", [](const DayCell &cell) { return QVariant{cell.isToday}; }},
    RowRole<DayCell>{"isChosen", [](const DayCell &cell) { return QVariant{cell.isChosen}; }},
    RowRole<DayCell>{"isBusy", [](const DayCell &cell) { return QVariant{cell.isBusy}; }},
};
constexpr std::array kEventRoles{
    RowRole<EventRow>{"time", [](const EventRow &row) { return QVariant{row.time}; }},
    RowRole<EventRow>{"title", [](const EventRow &row) { return QVariant{row.title}; }},
    RowRole<EventRow>{"trailing", [](const EventRow &row) { return QVariant{row.trailing}; }},
    RowRole<EventRow>{"place", [](const EventRow &row) { return QVariant{row.place}; }},
    RowRole<EventRow>{"calendar", [](const EventRow &row) { return QVariant{row.calendar}; }},
    RowRole<EventRow>{"span", [](const EventRow &row) { return QVariant{row.span}; }},
    RowRole<EventRow>{"isPast", [](const EventRow &row) { return QVariant{row.isPast}; }},
    RowRole<EventRow>{"isNow", [](const EventRow &row) { return QVariant{row.isNow}; }},
    RowRole<EventRow>{"isNext", [](const EventRow &row) { return QVariant{row.isNext}; }},
};
constexpr std::array kSourceRoles{
    RowRole<SourceRow>{"path", [](const SourceRow &row) { return QVariant{row.id}; }},
    RowRole<SourceRow>{"title", [](const SourceRow &row) { return QVariant{row.title}; }},
    RowRole<SourceRow>{"note", [](const SourceRow &row) { return QVariant{row.note}; }},
    RowRole<SourceRow>{"problem", [](const SourceRow &row) { return QVariant{row.problem}; }},
};

QString text(const char *words, int count = -1)
{
    return QCoreApplication::translate("Velvetnook::CalendarRows", words, nullptr, count);
}

QString shown(const std::string &text) { return QString::fromStdString(text); }

// "10:00"; of an event over midnight what this day has of it.
QString timeText(const Occurrence &event, std::int64_t day, const Formatting &formatting)
{
    if (event.isAllDay || (event.firstDay < day && event.lastDay > day)) {
        return text(QT_TRANSLATE_NOOP("Velvetnook::CalendarRows", "all day"));
    }
    return event.firstDay == day ? formatting.time(event.start)
                                 : QStringLiteral("–") + formatting.time(event.end);
}

QString momentOf(const Occurrence &event, Base::Instant instant, std::int64_t day,
                 const ApplicationModel &model, const Formatting &formatting)
{
    const QString date = formatting.date(noonOf(day, model));
    return event.isAllDay ? date
                          : text(QT_TRANSLATE_NOOP("Velvetnook::CalendarRows", "%1, %2"))
                                .arg(date, formatting.time(instant));
}

QString spanText(const Occurrence &event, const ApplicationModel &model,
                 const Formatting &formatting)
{
    const QString start = momentOf(event, event.start, event.firstDay, model, formatting);
    if (event.firstDay == event.lastDay) {
        return event.isAllDay || event.start == event.end
                   ? start
                   : start + QStringLiteral(" – ") + formatting.time(event.end);
    }
    return start + QStringLiteral(" – ") +
           momentOf(event, event.end, event.lastDay, model, formatting);
}

QString problemOf(const SourceReport &report, const Formatting &formatting)
{
    if (!report.problems.empty()) {
        const auto more = static_cast<int>(report.problems.size()) - 1;
        const QString first = engineText(report.problems.front());
        return more == 0
                   ? first
                   : first + u' ' +
                         formatting.digits(text(QT_TRANSLATE_N_NOOP("Velvetnook::CalendarRows",
                                                                    "%n more like it."),
                                                more));
    }
    const auto broken = static_cast<int>(report.broken);
    return broken == 0 ? QString{}
                       : formatting.digits(
                             text(QT_TRANSLATE_N_NOOP("Velvetnook::CalendarRows",
                                                      "%n event(s) in it could not be read."),
                                  broken));
}

} // namespace

std::span<const RowRole<DayCell>> dayRoles() { return kDayRoles; }
std::span<const RowRole<EventRow>> eventRoles() { return kEventRoles; }
std::span<const RowRole<SourceRow>> sourceRoles() { return kSourceRoles; }

std::int64_t dayNumberOf(KestCore::LocalDate date)
{
    return std::chrono::sys_days{date}.time_since_epoch().count();
}

Base::Instant noonOf(std::int64_t day, const ApplicationModel &model)
{
    return CalendarFiles::startOfDay(model.calendar(), day) + std::chrono::hours{12};
}

std::vector<DayCell> dayCells(const KestCore::CalendarMonth &month, KestCore::LocalDate chosen,
                              const CalendarReading &reading, const Formatting &formatting,
                              const ApplicationModel &model)
{
    std::vector<DayCell> cells;
    const std::int64_t first = dayNumberOf(month.days.front().date);
    const bool isRead = reading.firstDay == first && reading.days.size() == month.days.size();
    for (std::size_t at = 0; at < month.days.size(); ++at) {
        const auto &day = month.days[at];
        const auto number = first + static_cast<std::int64_t>(at);
        cells.push_back({.id = static_cast<int>(at),
                         .day = formatting.number(static_cast<unsigned>(day.date.day())),
                         .islamic = formatting.number(day.islamic.day),
                         .name = formatting.date(noonOf(number, model)) + QStringLiteral(", ") +
                                 formatting.islamicDate(day.islamic),
                         .isInMonth = day.isInMonth,
                         .isToday = day.isToday,
                         .isChosen = day.date == chosen,
                         .isBusy = isRead && !reading.days[at].events.empty()});
    }
    return cells;
}

std::vector<EventRow> eventRows(const CalendarReading &reading, std::int64_t day,
                                const ApplicationModel &model, const Formatting &formatting)
{
    const std::int64_t at = day - reading.firstDay;
    if (at < 0 || at >= static_cast<std::int64_t>(reading.days.size())) {
        return {};
    }
    const Base::Instant now = model.now();
    std::vector<EventRow> rows;
    for (const Occurrence &event : reading.days[static_cast<std::size_t>(at)].events) {
        const bool isNext = reading.next && *reading.next == event;
        const QString place = shown(event.place);
        rows.push_back(
            {.id = QStringLiteral("%1@%2")
                       .arg(shown(event.uid))
                       .arg(event.start.time_since_epoch().count(), 0, 'f', 0),
             .time = timeText(event, day, formatting),
             .title = event.title.empty()
                          ? text(QT_TRANSLATE_NOOP("Velvetnook::CalendarRows", "(no title)"))
                          : shown(event.title),
             .trailing = isNext ? text(QT_TRANSLATE_NOOP("Velvetnook::CalendarRows", "in %1"))
                                      .arg(formatting.remaining((event.start - now).count()))
                                : place,
             .place = place,
             .calendar = shown(event.calendar),
             .span = spanText(event, model, formatting),
             .isPast = event.end <= now,
             .isNow = !event.isAllDay && event.start <= now && now < event.end,
             .isNext = isNext});
    }
    return rows;
}

std::vector<SourceRow> sourceRows(const std::vector<std::string> &sources,
                                  const CalendarReading &reading, const Formatting &formatting)
{
    std::vector<SourceRow> rows;
    for (const std::string &source : sources) {
        const QString path = shown(source);
        SourceRow row{
            .id = path, .title = QFileInfo{path}.fileName(), .note = folderText(path)};
        const auto report = std::ranges::find(reading.reports, source, &SourceReport::path);
        if (report != reading.reports.end()) {
            const QString counted = formatting.digits(
                text(QT_TRANSLATE_N_NOOP("Velvetnook::CalendarRows", "%n event(s)"),
                     static_cast<int>(report->events)));
            row.note = counted + QStringLiteral(" · ") + row.note;
            row.problem = problemOf(*report, formatting);
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace Velvetnook
