// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/AssistantAnswers.h"

#include "Base/JsonWriter.h"

#include <fmt/format.h>

#include <chrono>

template Base::Result<std::string> Base::json::encode(const Cli::AssistantsAnswer &);
template Base::Result<std::string>
Base::json::encode(const std::vector<Cli::AssistantSessionAnswer> &);
template Base::Result<std::string> Base::json::encode(const Cli::AssistantChangeAnswer &);

namespace Cli
{

namespace
{

std::vector<AssistantNameAnswer> namesOf(const std::vector<Assistants::NamedUse> &uses)
{
    std::vector<AssistantNameAnswer> answers;
    for (const auto &use : uses) {
        answers.push_back({.name = use.name.empty() ? std::nullopt : std::optional{use.name},
                           .answers = use.answers,
                           .tokens = use.tokens});
    }
    return answers;
}

std::string dateOf(std::int64_t day)
{
    const std::chrono::year_month_day date{
        std::chrono::sys_days{std::chrono::days{static_cast<int>(day)}}};
    return fmt::format("{:04}-{:02}-{:02}", static_cast<int>(date.year()),
                       static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()));
}

Result<AssistantLimitAnswer> answerFor(const Assistants::Limit &limit)
{
    AssistantLimitAnswer answer{.name = limit.name,
                                .usedPercent = limit.usedPercent,
                                .windowMinutes = limit.windowMinutes};
    KEST_TRY(answer.toldAt, Base::toIso8601(limit.toldAt));
    if (limit.resetsAt) {
        KEST_TRY(answer.resetsAt, Base::toIso8601(*limit.resetsAt));
    }
    return answer;
}

Result<AssistantToolAnswer> answerFor(const Assistants::ToolUse &use)
{
    AssistantToolAnswer answer{.tool = use.tool,
                               .models = namesOf(use.models),
                               .projects = namesOf(use.projects),
                               .week = use.week};
    for (const auto &day : use.days) {
        answer.days.push_back(
            {.date = dateOf(day.day), .answers = day.answers, .tokens = day.tokens});
    }
    if (const auto &window = use.window) {
        AssistantWindowAnswer &shown = answer.window.emplace();
        KEST_TRY(shown.begin, Base::toIso8601(window->begin));
        KEST_TRY(shown.end, Base::toIso8601(window->end));
        shown.tokens = window->tokens;
    }
    for (const auto &limit : use.limits) {
        KEST_TRY(auto shown, answerFor(limit));
        answer.limits.push_back(std::move(shown));
    }
    return answer;
}

} // namespace

Result<AssistantsAnswer> answerFor(const std::vector<Assistants::ToolUse> &tools,
                                   const Assistants::LogTotals &totals)
{
    AssistantsAnswer answer{.files = totals.files,
                            .skippedLines =
                                totals.damagedLines + totals.longLines + totals.leftOut,
                            .unreadableFiles = totals.unreadable};
    for (const auto &tool : tools) {
        KEST_TRY(auto shown, answerFor(tool));
        answer.tools.push_back(std::move(shown));
    }
    return answer;
}

Result<std::vector<AssistantSessionAnswer>>
answerFor(const std::vector<Assistants::LoggedSession> &sessions)
{
    std::vector<AssistantSessionAnswer> answers;
    for (const auto &session : sessions) {
        KEST_TRY(std::string at, Base::toIso8601(session.at));
        answers.push_back({.tool = session.tool,
                           .session = session.session,
                           .folder = session.folder,
                           .state = session.state,
                           .at = std::move(at)});
    }
    return answers;
}

} // namespace Cli
