// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "CalendarFiles/Agenda.h"

#include <cstdint>
#include <cstdlib>

extern "C" CalendarFiles::EventParser *kestOpenEventParser();

namespace
{

using namespace CalendarFiles;

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// What holds of any agenda, whatever the file said.
void check(const Agenda &agenda, const Window &window)
{
    for (const Occurrence &event : agenda.events) {
        require(event.start <= event.end && event.firstDay <= event.lastDay);
        require(event.start < window.to && event.end >= window.from);
        require(Base::toIso8601(event.start) && Base::toIso8601(event.end));
    }
    for (const AgendaDay &day : agendaDays(agenda, 20'778, 40)) {
        require(day.events.size() <= agenda.events.size());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const std::unique_ptr<EventParser> parser{kestOpenEventParser()};
    static const auto viewer = KestCore::Calendar::inZone("UTC");
    const std::string_view bytes{reinterpret_cast<const char *>(data), size};
    const auto document = readCalendar(bytes, *parser);
    if (!document || !viewer) {
        return 0;
    }
    const Window window{.from = startOfDay(*viewer, 20'778), // November 2026
                        .to = startOfDay(*viewer, 20'818)};
    // Less than a command pays, so that a second holds many files.
    Budget budget{.steps = 60, .events = 100};
    Agenda agenda;
    addOccurrences(agenda, *document, "fuzz", *parser, *viewer, window, budget);
    arrange(agenda);
    require(budget.steps >= 0 && agenda.events.size() <= 100);
    check(agenda, window);
    return 0;
}
