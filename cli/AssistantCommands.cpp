// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/HookFile.h"
#include "Assistants/UnifiedDiff.h"
#include "Assistants/UsageLogs.h"
#include "KestCore/Store/StoreLocation.h"
#include "cli/AssistantAnswers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <memory>

// assistants: what coding assistants have used, who of them works, and their hooks.
namespace Cli
{

namespace
{

namespace fs = std::filesystem;
using Assistants::HookChange;
using Assistants::TokenCounts;
using Rows = std::vector<std::vector<std::string>>;

struct Arguments {
    int days = 7;
    std::string tool{};
    bool isYes = false;
};

Assistants::UsageLogs readLogs(int days, Base::Instant now)
{
    // A week and a day are wanted in any case: for the week, and for the window in it.
    const double seconds = 86'400.0 * (std::max(days, 7) + 1);
    Assistants::UsageLogs logs{KestCore::homeDirectory(), now - Base::Seconds{seconds}};
    logs.refresh();
    return logs;
}

std::string text(const std::optional<std::int64_t> &count)
{
    return count ? fmt::format("{}", *count) : "not told";
}

std::vector<std::string> row(std::string name, const TokenCounts &tokens)
{
    return {std::move(name), text(tokens.input), text(tokens.output), text(tokens.cacheWrite),
            text(tokens.cacheRead)};
}

void addNames(Rows &rows, const std::vector<AssistantNameAnswer> &names)
{
    for (const auto &name : names) {
        rows.push_back(row("  " + printable(name.name.value_or("(not told)")), name.tokens));
    }
}

void printLimits(const Console &console, const AssistantToolAnswer &tool)
{
    for (const auto &limit : tool.limits) {
        const std::string length =
            limit.windowMinutes ? fmt::format(" of {:.0f} minutes", *limit.windowMinutes) : "";
        const std::string reset =
            limit.resetsAt ? fmt::format(", until {}", *limit.resetsAt) : "";
        console.line(fmt::format("  limit \"{}\"{}: {:.0f} % used{}", printable(limit.name),
                                 length, limit.usedPercent, reset));
    }
    if (tool.limits.empty()) {
        console.line("  limits: not told by the tool's logs");
    }
}

void printTool(const Console &console, const AssistantToolAnswer &tool)
{
    Rows rows{{console.styled(printable(tool.tool), Style::strong), "input", "output",
               "cache written", "cache read"}};
    for (const auto &day : tool.days) {
        rows.push_back(row("  " + day.date, day.tokens));
    }
    addNames(rows, tool.models);
    addNames(rows, tool.projects);
    if (const auto &window = tool.window) {
        rows.push_back(row("  five hours since " + window->begin, window->tokens));
    }
    rows.push_back(row("  seven days", tool.week));
    console.table(rows);
    printLimits(console, tool);
}

Result<void> runUsage(const Session &session, const Arguments &args)
{
    const Base::Instant now = Base::wallClock();
    const auto logs = readLogs(args.days, now);
    KEST_TRY(
        const auto answer,
        answerFor(logs.report(KestCore::Calendar::ofHost(), now, args.days), logs.totals()));
    const Console &console = session.console;
    return console.answer(answer, [&] {
        for (const auto &tool : answer.tools) {
            printTool(console, tool);
        }
        if (answer.tools.empty()) {
            console.line("No coding assistant has left logs of these days here.");
        }
        if (answer.skippedLines + answer.unreadableFiles > 0) {
            console.line(
                console.styled(fmt::format("{} lines and {} files could not be used",
                                           answer.skippedLines, answer.unreadableFiles),
                               Style::warning));
        }
    });
}

Result<void> runSessions(const Session &session, const Arguments &args)
{
    const Base::Instant now = Base::wallClock();
    const auto logs = readLogs(args.days, now);
    KEST_TRY(const auto sessions, answerFor(logs.sessions(now)));
    const Console &console = session.console;
    return console.answer(sessions, [&] {
        Rows rows;
        for (const auto &one : sessions) {
            rows.push_back({std::string{Base::textOf(one.state)}, printable(one.tool),
                            printable(one.folder), one.at, printable(one.session)});
        }
        console.table(rows);
        if (rows.empty()) {
            console.line("No coding assistant has left logs of these days here.");
        }
    });
}

std::string ownCommand()
{
    std::error_code error;
    return Assistants::hookCommand(fs::read_symlink("/proc/self/exe", error));
}

void printChange(const Console &console, const AssistantChangeAnswer &answer)
{
    if (!answer.needed) {
        console.line("There is nothing to change in " + printable(answer.file));
        return;
    }
    console.text(printable(answer.diff, Layout::kept));
    if (!answer.written) {
        console.line("Nothing was written; --yes writes this.");
        return;
    }
    console.line("Written. " + (answer.copy
                                    ? "The file as it first was: " + printable(*answer.copy)
                                    : std::string{"The file is new."}));
}

Result<void> runChange(const Session &session, const Arguments &args, HookChange change)
{
    const auto *const tool = Assistants::findHookTool(args.tool);
    if (tool == nullptr) {
        return std::unexpected(KestError::invalidData(
            fmt::format("\"{}\" cannot be connected; claude-code and cursor can", args.tool)));
    }
    KEST_TRY(const auto plan,
             Assistants::planHooks(*tool, change, KestCore::homeDirectory(), ownCommand()));
    AssistantChangeAnswer answer{
        .tool = args.tool, .file = plan.file.string(), .needed = plan.isNeeded()};
    answer.diff = Assistants::unifiedDiff(plan.before.value_or(""), plan.after,
                                          plan.before ? answer.file : "/dev/null", answer.file);
    if (answer.needed && args.isYes) {
        KEST_TRY(const auto copy, Assistants::writeHooks(plan));
        answer.written = true;
        answer.copy = copy ? std::optional{copy->string()} : std::nullopt;
    }
    return session.console.answer(answer, [&] { printChange(session.console, answer); });
}

void addChange(CLI::App *assistants, Session &session, const std::shared_ptr<Arguments> &args,
               HookChange change, const char *name, const char *help)
{
    CLI::App *command = assistants->add_subcommand(name, help);
    command->add_option("TOOL", args->tool, "claude-code or cursor")->required();
    command->add_flag("--yes", args->isYes, "Write it, instead of only showing it");
    command->callback([=, &session] {
        session.command = [=, &session] { return runChange(session, *args, change); };
    });
}

} // namespace

void addAssistantCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    CLI::App *assistants = program.add_subcommand(
        "assistants", "Shows what coding assistants have used, from their logs");
    assistants->add_option("--days", args->days, "So many days, today included")
        ->check(CLI::Range(1, 366));
    assistants->require_subcommand(0, 1);
    assistants->callback([=, &session] {
        if (assistants->get_subcommands().empty()) {
            session.command = [=, &session] { return runUsage(session, *args); };
        }
    });
    assistants->add_subcommand("sessions", "Lists their sessions and what each does")
        ->callback([=, &session] {
            session.command = [=, &session] { return runSessions(session, *args); };
        });
    addChange(assistants, session, args, HookChange::connect, "connect",
              "Adds our command to the tool's hooks");
    addChange(assistants, session, args, HookChange::disconnect, "disconnect",
              "Takes our command out again");
}

} // namespace Cli
