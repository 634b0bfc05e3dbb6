// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/CalendarMonth.h"
#include "Velvetnook/Application/RowList.h"
#include "Velvetnook/Application/ViewModels/Calendar/CalendarReading.h"

#include <QString>

#include <span>
#include <vector>

// The lines and cells of the calendar as they are shown.
namespace Velvetnook
{

class ApplicationModel;
class Formatting;

// One day of the month's grid.
struct DayCell {
    int id{}; // its place in the grid
    QString day{};
    QString islamic{}; // the day of that month
    QString name{};    // for a screen reader
    bool isInMonth{};
    bool isToday{};
    bool isChosen{};
    bool isBusy{};

    bool operator==(const DayCell &) const = default;
};

// One event of the chosen day.
struct EventRow {
    QString id{};
    QString time{};
    QString title{};
    QString trailing{}; // the place, or how long it is until then
    QString place{};
    QString calendar{};
    QString span{}; // from when to when, in full
    bool isPast{};
    bool isNow{};
    bool isNext{};

    bool operator==(const EventRow &) const = default;
};

// One file or folder of the user's.
struct SourceRow {
    QString id{}; // its path
    QString title{};
    QString note{};
    QString problem{};

    bool operator==(const SourceRow &) const = default;
};

std::span<const RowRole<DayCell>> dayRoles();
std::span<const RowRole<EventRow>> eventRoles();
std::span<const RowRole<SourceRow>> sourceRoles();

std::vector<DayCell> dayCells(const KestCore::CalendarMonth &month, KestCore::LocalDate chosen,
                              const CalendarReading &reading, const Formatting &formatting,
                              const ApplicationModel &model);
std::vector<EventRow> eventRows(const CalendarReading &reading, std::int64_t day,
                                const ApplicationModel &model, const Formatting &formatting);
std::vector<SourceRow> sourceRows(const std::vector<std::string> &sources,
                                  const CalendarReading &reading, const Formatting &formatting);

std::int64_t dayNumberOf(KestCore::LocalDate date);
Base::Instant noonOf(std::int64_t day, const ApplicationModel &model);

} // namespace Velvetnook
