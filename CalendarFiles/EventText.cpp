// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/EventText.h"

#include "Base/Module.h"

namespace CalendarFiles
{

Result<std::unique_ptr<EventParser>> openEventParser()
{
    const auto symbol = Base::loadFromModule("KestCalendarFiles.so", "kestOpenEventParser");
    if (!symbol) {
        return std::unexpected(Base::KestError::unavailable(
            "The part that reads calendars cannot be loaded: " + symbol.error()));
    }
    return std::unique_ptr<EventParser>{reinterpret_cast<OpenEventParser *>(*symbol)()};
}

} // namespace CalendarFiles
