// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/JsonWriter.h"
#include "CalendarFiles/SourceCheck.h"
#include "KestCore/Tools/CalendarSources.h"
#include "cli/CalendarAnswers.h"
#include "cli/PrayerText.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// calendar: the month, and what the user's calendar files hold. Nothing there is ever written.
namespace Cli
{

namespace
{

namespace chrono = std::chrono;

using CalendarFiles::AgendaDay;
using CalendarFiles::CalendarLibrary;
using CalendarFiles::Occurrence;
using KestCore::Calendar;
using KestCore::LocalDate;
using KestCore::PrayerCalculator;

constexpr int kMostDays = 366;
constexpr int kLookAhead = 30; // days in which the next event is looked for

struct Arguments {
    std::optional<int> year{};
    std::optional<unsigned> month{};
    std::optional<std::string> date{};
    int days = 7;
    std::string path{};
};

std::vector<std::string> problemsOf(const CalendarLibrary &library)
{
    std::vector<std::string> problems;
    for (const auto &report : library.reports()) {
        const auto answer = sourceAnswer(report);
        problems.insert(problems.end(), answer.problems.begin(), answer.problems.end());
        if (report.broken > 0) {
            problems.push_back(fmt::format("{}: {} {} could not be read.", answer.path,
                                           report.broken,
                                           report.broken == 1 ? "event" : "events"));
        }
    }
    return problems;
}

// Beside the answer, as most of it may be there.
void warn(const std::vector<std::string> &problems)
{
    for (const std::string &problem : problems) {
        std::fprintf(stderr, "kest: %s\n", printable(problem).c_str());
    }
}

// What the user's files hold on these days; nothing is loaded where there is no file.
struct Planned {
    CalendarFiles::Agenda agenda{};
    std::vector<AgendaDay> days{};
    std::optional<Occurrence> next{};
    std::size_t broken{}; // events that could not be read, or their rules
    std::vector<std::string> problems{};
};

Result<Planned> planned(const std::vector<std::string> &sources, const Calendar &calendar,
                        std::int64_t first, int count, Base::Instant now)
{
    Planned found;
    if (!sources.empty()) {
        KEST_TRY(auto library, CalendarLibrary::open());
        library.refresh(sources);
        found.agenda = library.agenda(
            calendar, {.from = CalendarFiles::startOfDay(calendar, first),
                       .to = CalendarFiles::startOfDay(calendar, first + count)});
        found.next = CalendarFiles::nextEvent(
            library.agenda(calendar, {.from = now, .to = now + chrono::days{kLookAhead}}), now);
        found.problems = problemsOf(library);
        found.broken = found.agenda.broken;
        for (const auto &report : library.reports()) {
            found.broken += report.broken;
        }
    }
    found.days = CalendarFiles::agendaDays(found.agenda, first, count);
    return found;
}

std::string cell(const Console &console, const KestCore::CalendarDay &day, bool isBusy)
{
    if (!day.isInMonth) {
        return "";
    }
    const std::string date =
        fmt::format("{}{:>2}", day.isToday ? "[" : " ", static_cast<unsigned>(day.date.day()));
    return console.styled(date, day.isToday ? Style::good : Style::strong) +
           console.styled(fmt::format(" {:>2}", day.islamic.day), Style::faint) +
           (day.isToday ? "]" : " ") + (isBusy ? "*" : " ");
}

void printMonth(const Console &console, const KestCore::CalendarMonth &month,
                const std::vector<AgendaDay> &days, int offset)
{
    const LocalDate first{month.month / 1};
    const LocalDate last{month.month / chrono::last};
    const auto islamic = [&](LocalDate date) {
        return islamicDateText(chrono::sys_days{date} + chrono::days{offset});
    };
    console.line(console.styled(monthText(month.month), Style::strong));
    console.line(
        console.styled(fmt::format("{} to {}", islamic(first), islamic(last)), Style::faint));
    std::vector<std::vector<std::string>> rows(1);
    for (std::size_t at = 0; at < 7; ++at) {
        rows[0].push_back(" " + dateText(month.days[at].date).substr(0, 3));
    }
    for (std::size_t at = 0; at < month.days.size(); ++at) {
        if (at % 7 == 0) {
            rows.emplace_back();
        }
        rows.back().push_back(cell(console, month.days[at], !days[at].events.empty()));
    }
    console.table(rows);
}

Result<void> runMonth(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto settings, storedSettings(session));
    const Calendar calendar = Calendar::ofHost();
    const Base::Instant now = Base::wallClock();
    const LocalDate today{chrono::sys_days{chrono::days{calendar.dayNumber(now)}}};
    const chrono::year year = args.year ? chrono::year{*args.year} : today.year();
    const auto month = year / (args.month ? chrono::month{*args.month} : today.month());
    KEST_CHECK(PrayerCalculator::checkDate(month / 1));
    const int offset = KestCore::islamicDayOffset(settings);
    const auto shown = KestCore::calendarMonth(
        month, KestCore::firstWeekday(settings, dateLocale()), today, offset);
    const auto first = chrono::sys_days{shown.days.front().date}.time_since_epoch().count();
    KEST_TRY(const auto found, planned(KestCore::calendarSources(settings), calendar, first,
                                       static_cast<int>(shown.days.size()), now));
    warn(found.problems);
    return session.console.answer(monthAnswer(shown, found.days), [&] {
        printMonth(session.console, shown, found.days, offset);
    });
}

// "10:00–11:00"; of an event over midnight the part that is on this day.
std::string hoursText(const Calendar &calendar, const Occurrence &event, std::int64_t day)
{
    if (event.isAllDay || (event.firstDay < day && event.lastDay > day)) {
        return "all day";
    }
    const std::string start =
        event.firstDay == day ? clockText(calendar, event.start) : std::string{};
    const std::string end =
        event.lastDay == day ? clockText(calendar, event.end) : std::string{};
    return event.start == event.end ? start : start + "–" + end;
}

std::string titleOf(const Occurrence &event)
{
    return event.title.empty() ? "(no title)" : printable(event.title);
}

void printDay(const Console &console, const Calendar &calendar, const AgendaDay &day,
              int offset)
{
    const chrono::sys_days date{day.date};
    console.line(
        console.styled(dateText(day.date), Style::strong) +
        console.styled(" · " + islamicDateText(date + chrono::days{offset}), Style::faint));
    std::vector<std::vector<std::string>> rows;
    for (const Occurrence &event : day.events) {
        rows.push_back({"  " + hoursText(calendar, event, date.time_since_epoch().count()),
                        titleOf(event), printable(event.place),
                        console.styled(printable(event.calendar), Style::faint)});
    }
    console.table(rows);
}

void printAgenda(const Session &session, const Calendar &calendar, const Planned &found,
                 int offset, Base::Instant now)
{
    const Console &console = session.console;
    for (const AgendaDay &day : found.days) {
        if (!day.events.empty()) {
            printDay(console, calendar, day, offset);
        }
    }
    if (found.agenda.events.empty()) {
        console.line("Nothing is planned on these days.");
    }
    if (found.next) {
        const Occurrence &next = *found.next;
        console.line(
            fmt::format("Next: {} {}", titleOf(next), countdownText(next.start - now)));
    }
    if (found.agenda.broken > 0) {
        console.line(fmt::format("{} series could not be counted out.", found.agenda.broken));
    }
    if (!found.agenda.isWhole) {
        console.line("There is more than is shown: some series have too many dates.");
    }
}

Result<AgendaAnswer> agendaAnswer(const Planned &found, int offset, Base::Instant now)
{
    AgendaAnswer answer{.broken = static_cast<std::int64_t>(found.broken),
                        .whole = found.agenda.isWhole,
                        .problems = found.problems};
    for (const AgendaDay &day : found.days) {
        KEST_TRY(answer.days.emplace_back(), agendaDayAnswer(day, offset));
    }
    if (found.next) {
        KEST_TRY(auto event, eventAnswer(*found.next));
        answer.next.value = NextEventAnswer{.event = std::move(event),
                                            .seconds = (found.next->start - now).count()};
    }
    return answer;
}

Result<void> runAgenda(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto settings, storedSettings(session));
    const Calendar calendar = Calendar::ofHost();
    const Base::Instant now = Base::wallClock();
    std::int64_t first = calendar.dayNumber(now);
    if (args.date) {
        KEST_TRY(const LocalDate date, dateFrom(*args.date));
        KEST_CHECK(PrayerCalculator::checkDate(date));
        first = chrono::sys_days{date}.time_since_epoch().count();
    }
    const auto sources = KestCore::calendarSources(settings);
    KEST_TRY(const auto found, planned(sources, calendar, first, args.days, now));
    const int offset = KestCore::islamicDayOffset(settings);
    KEST_TRY(const auto answer, agendaAnswer(found, offset, now));
    if (!session.console.isJson) {
        warn(found.problems);
    }
    return session.console.answer(answer, [&] {
        if (sources.empty()) {
            session.console.line("No calendar is there yet: kest calendar add FILE adds one.");
        } else {
            printAgenda(session, calendar, found, offset, now);
        }
    });
}

Result<void> printSources(const Console &console, const std::vector<std::string> &sources)
{
    std::vector<SourceAnswer> answers;
    if (!sources.empty()) {
        KEST_TRY(auto library, CalendarLibrary::open());
        library.refresh(sources);
        for (const auto &report : library.reports()) {
            answers.push_back(sourceAnswer(report));
        }
    }
    return console.answer(answers, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const SourceAnswer &source : answers) {
            rows.push_back(
                {console.styled(source.path, Style::strong),
                 fmt::format("{} events", source.events),
                 source.broken > 0 ? fmt::format("{} could not be read", source.broken) : ""});
        }
        console.table(rows);
        for (const SourceAnswer &source : answers) {
            warn(source.problems);
        }
        if (rows.empty()) {
            console.line("No calendar is there yet: kest calendar add FILE adds one.");
        }
    });
}

using Change = Result<void>(KestCore::Settings &, std::string_view);

Result<void> changeSources(const Session &session, const std::string &path, Change *change)
{
    std::vector<std::string> sources;
    {
        KEST_TRY(auto store, session.openStore());
        KEST_CHECK(store.change(
            [&](KestCore::NativeState &state) { return change(state.settings, path); }));
        sources = KestCore::calendarSources(store.state().settings);
    }
    return printSources(session.console, sources);
}

Result<void> runAdd(const Session &session, const Arguments &args)
{
    KEST_TRY(const std::string path, CalendarFiles::wholePath(args.path));
    KEST_CHECK(CalendarFiles::checkSource(path));
    return changeSources(session, path, KestCore::addCalendarSource);
}

Result<void> runRemove(const Session &session, const Arguments &args)
{
    KEST_TRY(const std::string path, CalendarFiles::wholePath(args.path));
    return changeSources(session, path, KestCore::removeCalendarSource);
}

Result<void> runSources(const Session &session, const Arguments & /*args*/)
{
    KEST_TRY(const auto settings, storedSettings(session));
    return printSources(session.console, KestCore::calendarSources(settings));
}

} // namespace

void addCalendarCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const auto runs = [&](CLI::App *command,
                          Result<void> (*run)(const Session &, const Arguments &)) {
        command->callback(
            [=, &session] { session.command = [=, &session] { return run(session, *args); }; });
        return command;
    };
    CLI::App *calendar =
        program.add_subcommand("calendar", "Shows the month and what is planned");
    calendar->add_option("--year", args->year, "1900 to 2200")
        ->check(CLI::Range(PrayerCalculator::kFirstYear, PrayerCalculator::kLastYear));
    calendar->add_option("--month", args->month, "1 to 12")->check(CLI::Range(1, 12));
    calendar->require_subcommand(0, 1);
    calendar->callback([=, &session] {
        if (calendar->get_subcommands().empty()) {
            session.command = [=, &session] { return runMonth(session, *args); };
        }
    });

    CLI::App *agenda =
        runs(calendar->add_subcommand("agenda", "Shows the coming days"), runAgenda);
    agenda->add_option("--days", args->days, "So many days, 1 to 366")
        ->check(CLI::Range(1, kMostDays));
    agenda->add_option("--date", args->date, "From this date on, such as 2026-11-21");

    runs(calendar->add_subcommand("sources", "Lists the files and folders"), runSources);
    CLI::App *add = runs(
        calendar->add_subcommand("add", "Adds a calendar file, or a folder of them"), runAdd);
    add->add_option("PATH", args->path, "An iCalendar file or a folder")->required();
    CLI::App *remove =
        runs(calendar->add_subcommand("remove", "Takes one off the list; the file stays"),
             runRemove);
    remove->add_option("PATH", args->path, "As it was added")->required();
}

} // namespace Cli
