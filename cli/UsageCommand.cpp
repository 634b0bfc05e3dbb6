// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/UsageCommand.h"

#include "Base/JsonWriter.h"
#include "KestCore/Tools/CalendarMonth.h"
#include "KestCore/Tools/ScreenTimeTotals.h"
#include "cli/Answers.h"
#include "cli/PrayerText.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <cmath>
#include <memory>

namespace Cli
{

namespace
{

namespace chrono = std::chrono;

using KestCore::ApplicationTotal;
using KestCore::LocalDate;
using KestCore::UsageDay;
using KestCore::UsageTotal;

struct ApplicationAnswer {
    std::string application{};
    std::string name{};
    double seconds{};
};
consteval auto jsonFields(Of<ApplicationAnswer>)
{
    using R = ApplicationAnswer;
    return std::tuple{json::Field{"application", &R::application},
                      json::Field{"name", &R::name}, json::Field{"seconds", &R::seconds}};
}
static_assert(json::coversAllMembers<ApplicationAnswer>());

struct UsageDayAnswer {
    std::string date{};
    double seconds{};
    double longestStretch{};
    json::OrNull<double> change{}; // null where nothing is known of the day before
    std::vector<ApplicationAnswer> applications{};
};
consteval auto jsonFields(Of<UsageDayAnswer>)
{
    using R = UsageDayAnswer;
    return std::tuple{json::Field{"date", &R::date}, json::Field{"seconds", &R::seconds},
                      json::Field{"longestStretch", &R::longestStretch},
                      json::Field{"change", &R::change},
                      json::Field{"applications", &R::applications}};
}
static_assert(json::coversAllMembers<UsageDayAnswer>());

struct UsageAnswer {
    bool enabled{};
    std::vector<UsageDayAnswer> days{};
    double seconds{}; // of all these days
    json::OrNull<double> change{};
    std::vector<ApplicationAnswer> applications{};
};
consteval auto jsonFields(Of<UsageAnswer>)
{
    using R = UsageAnswer;
    return std::tuple{json::Field{"enabled", &R::enabled}, json::Field{"days", &R::days},
                      json::Field{"seconds", &R::seconds}, json::Field{"change", &R::change},
                      json::Field{"applications", &R::applications}};
}
static_assert(json::coversAllMembers<UsageAnswer>());

constexpr int kWeek = 7;

struct Arguments {
    int days = 1;
    bool isWeek{};
};

// The days that are asked for, up to today.
struct Asked {
    LocalDate today{};
    int days{};
    int daysBack{}; // how far the days lie back that these are compared with
};

std::string durationText(double seconds)
{
    const auto minutes = static_cast<std::int64_t>(seconds / 60);
    return minutes < 60 ? fmt::format("{} min", minutes)
                        : fmt::format("{} h {} min", minutes / 60, minutes % 60);
}

std::string changeText(std::optional<double> change, std::string_view before)
{
    if (!change) {
        return "";
    }
    if (std::abs(*change) < 60) {
        return fmt::format("as much as {}", before);
    }
    return fmt::format("{} {} than {}", durationText(std::abs(*change)),
                       *change < 0 ? "less" : "more", before);
}

std::vector<ApplicationAnswer> applicationAnswers(const std::vector<ApplicationTotal> &totals)
{
    std::vector<ApplicationAnswer> answers;
    for (const auto &[application, name, seconds] : totals) {
        answers.push_back({.application = application, .name = name, .seconds = seconds});
    }
    return answers;
}

UsageAnswer answerFor(bool isEnabled, const std::vector<UsageDay> &days,
                      const UsageTotal &total)
{
    UsageAnswer answer{.enabled = isEnabled,
                       .seconds = total.seconds,
                       .applications = applicationAnswers(total.applications)};
    answer.change.value = total.change;
    for (const UsageDay &day : days) {
        answer.days.push_back({.date = isoDateText(day.date),
                               .seconds = day.seconds,
                               .longestStretch = day.longestStretch,
                               .applications = applicationAnswers(day.applications)});
        answer.days.back().change.value = day.change;
    }
    return answer;
}

void printDays(const Console &console, const std::vector<UsageDay> &days)
{
    std::vector<std::vector<std::string>> rows;
    for (const UsageDay &day : days) {
        rows.push_back(
            {dateText(day.date).substr(0, 3), isoDateText(day.date),
             console.styled(durationText(day.seconds), Style::strong),
             console.styled(changeText(day.change, "the day before"), Style::faint)});
    }
    console.table(rows);
}

void printUsage(const Console &console, const std::vector<UsageDay> &days,
                const UsageTotal &total, bool isWeek)
{
    const bool isOneDay = days.size() == 1;
    if (!isOneDay) {
        printDays(console, days);
        console.line("");
    }
    std::string title = "In all";
    std::string before = "before";
    if (isOneDay) {
        title = "Today";
        before = "yesterday";
    } else if (isWeek) {
        title = "This week";
        before = "up to here last week";
    }
    const std::string change = changeText(total.change, before);
    console.line(fmt::format(
        "{}{}", console.styled(title + " " + durationText(total.seconds), Style::strong),
        change.empty() ? "" : ", " + change));
    std::vector<std::vector<std::string>> rows;
    for (const ApplicationTotal &application : total.applications) {
        rows.push_back({"  " + printable(application.name), durationText(application.seconds)});
    }
    console.table(rows);
    if (isOneDay && days.front().longestStretch > 0) {
        console.line("Longest stretch " + durationText(days.front().longestStretch));
    }
}

Asked askedFor(const Arguments &args, const KestCore::Settings &settings)
{
    const auto today = KestCore::Calendar::ofHost().dayNumber(Base::wallClock());
    const chrono::sys_days date{chrono::days{today}};
    if (!args.isWeek) {
        return {.today = date, .days = args.days, .daysBack = args.days};
    }
    const auto first = KestCore::firstWeekday(settings, dateLocale());
    const auto into = (chrono::weekday{date} - first).count();
    return {.today = date, .days = static_cast<int>(into) + 1, .daysBack = kWeek};
}

Result<void> runUsage(const Session &session, const Arguments &args)
{
    KestCore::Settings settings;
    std::vector<KestCore::LocalRecord> records;
    {
        KEST_TRY(auto store, session.openStore());
        settings = store.state().settings;
        KEST_TRY(records, store.recordsOfKind("usage"));
    }
    const Asked asked = askedFor(args, settings);
    const auto days = KestCore::usageDays(records, asked.today, asked.days);
    const auto total = KestCore::usageTotal(records, asked.today, asked.days, asked.daysBack);
    const bool isEnabled = KestCore::screenTimeSettings(settings).enabled;
    return session.console.answer(answerFor(isEnabled, days, total), [&] {
        if (isEnabled || !records.empty()) {
            printUsage(session.console, days, total, args.isWeek);
        }
        if (!isEnabled) {
            session.console.line("Screen time is off: kest settings set screen-time.enabled "
                                 "true turns it on.");
        }
    });
}

} // namespace

void addUsageCommand(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *usage = program.add_subcommand("usage", "Shows the time at the screen");
    CLI::Option *days = usage->add_option("--days", args->days, "So many days, 1 to 92")
                            ->check(CLI::Range(1, KestCore::kKeptUsageDays));
    usage->add_flag("--week", args->isWeek, "The week so far")->excludes(days);
    usage->callback([=, &session] {
        session.command = [=, &session] { return runUsage(session, *args); };
    });
}

} // namespace Cli
