// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Prayer/PrayerCalculator.h"
#include "PrayerCore/Qibla.h"
#include "cli/PrayerAnswers.h"
#include "cli/PrayerText.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <array>
#include <memory>

// prayer, prayer month and qibla.
namespace Cli
{

namespace
{

using KestCore::LocalDate;
using KestCore::PrayerCalculator;
using KestCore::PrayerDay;
using KestCore::PrayerInputs;

constexpr std::string_view kNote = "Calculated prayer time. Check your local timetable.";

struct Arguments {
    // The options that stand in for a setting, by the setting's name.
    std::map<std::string, std::string> overrides{};
    std::optional<std::string> date{};
    std::optional<int> days{};
    std::optional<int> year{};
    std::optional<unsigned> month{};
    bool isCsv = false;
    bool isIcs = false;
};

// The stored settings with the options over them.
Result<PrayerInputs> inputsFor(const Session &session, const Arguments &args)
{
    KestCore::Settings settings;
    {
        KEST_TRY(const auto store, session.openStore());
        settings = store.state().settings;
    }
    for (const auto &[key, value] : args.overrides) {
        settings.insert_or_assign(key, value);
    }
    return KestCore::prayerInputs(settings);
}

double qiblaDegrees(const PrayerInputs &inputs)
{
    const auto qibla = PrayerCore::qibla(inputs.coordinates);
    return qibla ? qibla->direction.degrees : 0;
}

std::string compassPoint(double degrees)
{
    constexpr std::array<std::string_view, 16> kPoints{"N",  "NNE", "NE", "ENE", "E",  "ESE",
                                                       "SE", "SSE", "S",  "SSW", "SW", "WSW",
                                                       "W",  "WNW", "NW", "NNW"};
    return std::string{kPoints.at(static_cast<std::size_t>(std::lround(degrees / 22.5)) % 16)};
}

std::vector<std::string> rowOf(const PrayerInputs &inputs, const PrayerDay &day,
                               std::string label)
{
    std::vector<std::string> row{std::move(label)};
    for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
        row.push_back(clockText(inputs.calendar, day.times
                                                     ? PrayerCore::instantOf(*day.times, prayer)
                                                     : std::nullopt));
    }
    return row;
}

void printTable(const Console &console, const PrayerInputs &inputs,
                const std::vector<PrayerDay> &days)
{
    std::vector<std::vector<std::string>> rows{{""}};
    for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
        rows[0].push_back(console.styled(nameOf(prayer), Style::strong));
    }
    for (const PrayerDay &day : days) {
        const auto weekday = dateText(day.date).substr(0, 3);
        rows.push_back(
            rowOf(inputs, day,
                  fmt::format("{} {:>2}", weekday, static_cast<unsigned>(day.date.day()))));
    }
    console.table(rows);
}

void printDay(const Console &console, const PrayerInputs &inputs, const PrayerDay &day,
              const std::optional<KestCore::NextPrayer> &next)
{
    if (!day.times) {
        console.line(
            "There are no times to calculate for this date here: the Sun does not rise "
            "or set as usual, or the place skipped the date. Follow your local "
            "authority.");
        return;
    }
    std::vector<std::vector<std::string>> rows;
    for (const auto &[prayer, text] : enumTexts(Base::Of<PrayerCore::Prayer>{})) {
        const auto at = PrayerCore::instantOf(*day.times, prayer);
        const bool isNext = next && at == next->at;
        const Style style = isNext ? Style::strong : Style::plain;
        rows.push_back({console.styled(nameOf(prayer), style),
                        console.styled(clockText(inputs.calendar, at), style)});
    }
    console.table(rows);
}

void printPeople(const Console &console, const PrayerInputs &inputs,
                 const std::vector<PrayerDay> &days, Base::Instant now)
{
    const auto next = PrayerCalculator::next(inputs, now);
    console.line(console.styled(dateText(days[0].date), Style::strong) + " · " +
                 islamicDateText(days[0].date));
    if (days.size() == 1) {
        printDay(console, inputs, days[0], next);
    } else {
        printTable(console, inputs, days);
    }
    console.line("");
    if (next) {
        console.line(fmt::format("{} {} ({})", nameOf(next->prayer),
                                 countdownText(next->at - now),
                                 clockText(inputs.calendar, next->at)));
    }
    const double qibla = qiblaDegrees(inputs);
    console.line(fmt::format("Qibla {:.1f}° ({})", qibla, compassPoint(qibla)));
    console.line(console.styled(kNote, Style::faint));
}

Result<void> runPrayer(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto inputs, inputsFor(session, args));
    const Base::Instant now = Base::wallClock();
    LocalDate first = PrayerCalculator::today(inputs, now);
    if (args.date) {
        KEST_TRY(first, dateFrom(*args.date));
    }
    const int count = args.days.value_or(1);
    KEST_CHECK(PrayerCalculator::checkDate(first));
    KEST_CHECK(PrayerCalculator::checkDate(std::chrono::sys_days{first} +
                                           std::chrono::days{count - 1}));
    const auto days = PrayerCalculator::days(inputs, first, count);
    if (!session.console.isJson) {
        printPeople(session.console, inputs, days, now);
        return {};
    }
    PrayerAnswer answer{.method = inputs.parameters.method,
                        .timezone = std::string{inputs.timeZone},
                        .qibla = qiblaDegrees(inputs)};
    for (const PrayerDay &day : days) {
        KEST_TRY(answer.days.emplace_back(), dayAnswer(day));
    }
    if (const auto next = PrayerCalculator::next(inputs, now)) {
        KEST_TRY(std::string at, Base::toIso8601(next->at));
        answer.next.value = {.prayer = next->prayer, .at = std::move(at)};
    }
    return session.console.answer(answer, [] {});
}

Result<void> runMonth(const Session &session, const Arguments &args)
{
    if (args.date || args.days) {
        return std::unexpected(
            KestError::invalidData("--date and --days do not go with prayer month"));
    }
    if (session.console.isJson && (args.isCsv || args.isIcs)) {
        return std::unexpected(
            KestError::invalidData("--json does not go with --csv and --ics"));
    }
    KEST_TRY(const auto inputs, inputsFor(session, args));
    const Base::Instant now = Base::wallClock();
    const LocalDate today = PrayerCalculator::today(inputs, now);
    const std::chrono::year year = args.year ? std::chrono::year{*args.year} : today.year();
    const std::chrono::month month =
        args.month ? std::chrono::month{*args.month} : today.month();
    const LocalDate first{year, month, std::chrono::day{1}};
    KEST_CHECK(PrayerCalculator::checkDate(first));
    const LocalDate last{year / month / std::chrono::last};
    const auto days = PrayerCalculator::days(
        inputs, first, static_cast<int>(static_cast<unsigned>(last.day())));
    if (args.isCsv || args.isIcs) {
        session.console.text(args.isCsv ? csvText(inputs.calendar, days) : icsText(days, now));
        return {};
    }
    if (session.console.isJson) {
        std::vector<DayAnswer> answers;
        for (const PrayerDay &day : days) {
            KEST_TRY(answers.emplace_back(), dayAnswer(day));
        }
        return session.console.answer(answers, [] {});
    }
    session.console.line(monthText(year / month));
    printTable(session.console, inputs, days);
    session.console.line(session.console.styled(kNote, Style::faint));
    return {};
}

Result<void> runQibla(const Session &session, const Arguments &args)
{
    KEST_TRY(const auto inputs, inputsFor(session, args));
    const QiblaAnswer answer{.qibla = qiblaDegrees(inputs)};
    return session.console.answer(answer, [&] {
        session.console.line(fmt::format("{:.1f}° clockwise from true north ({})", answer.qibla,
                                         compassPoint(answer.qibla)));
    });
}

void addOverrides(CLI::App *command, const std::shared_ptr<Arguments> &args)
{
    const auto add = [&](const char *option, const char *setting, const char *help) {
        command
            ->add_option_function<std::string>(
                option,
                [args, setting](const std::string &value) { args->overrides[setting] = value; },
                help)
            ->take_last();
    };
    add("--latitude", "prayer.latitude", "Degrees, north positive");
    add("--longitude", "prayer.longitude", "Degrees, east positive");
    add("--timezone", "prayer.timezone", "Such as Africa/Cairo");
    add("--method", "prayer.method", "A calculation method, or automatic");
    add("--country", "prayer.country", "Two letters, for the automatic method");
    add("--asr", "prayer.asr", "shafi or hanafi");
    add("--high-latitude", "prayer.highLatitude",
        "middleOfTheNight, seventhOfTheNight, twilightAngle or automatic");
}

} // namespace

void addPrayerCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *prayer = program.add_subcommand("prayer", "Shows the prayer times");
    addOverrides(prayer, args);
    prayer->add_option("--date", args->date, "Of this date, such as 2026-11-21")->take_last();
    prayer->add_option("--days", args->days, "So many days, 1 to 7")
        ->check(CLI::Range(1, PrayerCalculator::kMostDays));
    prayer->require_subcommand(0, 1);
    prayer->callback([=, &session] {
        if (prayer->get_subcommands().empty()) {
            session.command = [=, &session] { return runPrayer(session, *args); };
        }
    });

    CLI::App *month = prayer->add_subcommand("month", "Shows a month's timetable");
    month->add_option("--year", args->year, "1900 to 2200")
        ->check(CLI::Range(PrayerCalculator::kFirstYear, PrayerCalculator::kLastYear));
    month->add_option("--month", args->month, "1 to 12")->check(CLI::Range(1, 12));
    CLI::Option *csv = month->add_flag("--csv", args->isCsv, "Comma-separated values");
    month->add_flag("--ics", args->isIcs, "An iCalendar file")->excludes(csv);
    month->callback([=, &session] {
        session.command = [=, &session] { return runMonth(session, *args); };
    });

    CLI::App *qibla = program.add_subcommand("qibla", "Shows the way to the Kaaba");
    addOverrides(qibla, args);
    qibla->callback([=, &session] {
        session.command = [=, &session] { return runQibla(session, *args); };
    });
}

} // namespace Cli
