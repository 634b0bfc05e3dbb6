// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CalendarFiles/CalendarLibrary.h"

#include <QStringList>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Velvetnook
{

// What the user's calendar files hold for the days that are shown.
struct CalendarReading {
    std::int64_t firstDay{};
    std::vector<CalendarFiles::AgendaDay> days{};
    std::optional<CalendarFiles::Occurrence> next{}; // of the coming days
    std::vector<CalendarFiles::SourceReport> reports{};
    std::size_t broken{}; // series that could not be counted out
    bool isWhole = true;
    QStringList places{};  // to be watched
    std::string failure{}; // why nothing can be read at all
};

struct CalendarQuestion {
    std::vector<std::string> sources{};
    KestCore::Calendar calendar;
    std::int64_t firstDay{};
    int dayCount{};
    Base::Instant now{};
};

// Reads the files, on a thread of its own. What was read is kept while somebody looks.
class CalendarReader
{
public:
    CalendarReading read(const CalendarQuestion &question);
    void forget() { m_library.reset(); }

private:
    std::optional<CalendarFiles::CalendarLibrary> m_library;
};

} // namespace Velvetnook
