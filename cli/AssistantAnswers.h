// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/UsageLogs.h"
#include "cli/Answers.h"

// The JSON documents of the commands of assistants. Scripts rely on their shapes: only add.
namespace Cli
{

struct AssistantDayAnswer {
    std::string date{};
    std::int64_t answers{};
    Assistants::TokenCounts tokens{};
};
consteval auto jsonFields(Of<AssistantDayAnswer>)
{
    using R = AssistantDayAnswer;
    return std::tuple{json::Field{"date", &R::date}, json::Field{"answers", &R::answers},
                      json::Field{"tokens", &R::tokens}};
}
static_assert(json::coversAllMembers<AssistantDayAnswer>());

struct AssistantNameAnswer {
    std::optional<std::string> name{};
    std::int64_t answers{};
    Assistants::TokenCounts tokens{};
};
consteval auto jsonFields(Of<AssistantNameAnswer>)
{
    using R = AssistantNameAnswer;
    return std::tuple{json::Field{"name", &R::name}, json::Field{"answers", &R::answers},
                      json::Field{"tokens", &R::tokens}};
}
static_assert(json::coversAllMembers<AssistantNameAnswer>());

struct AssistantWindowAnswer {
    std::string begin{};
    std::string end{};
    Assistants::TokenCounts tokens{};
};
consteval auto jsonFields(Of<AssistantWindowAnswer>)
{
    using R = AssistantWindowAnswer;
    return std::tuple{json::Field{"begin", &R::begin}, json::Field{"end", &R::end},
                      json::Field{"tokens", &R::tokens}};
}
static_assert(json::coversAllMembers<AssistantWindowAnswer>());

struct AssistantLimitAnswer {
    std::string name{};
    double usedPercent{};
    std::optional<double> windowMinutes{};
    std::optional<std::string> resetsAt{};
    std::string toldAt{};
};
consteval auto jsonFields(Of<AssistantLimitAnswer>)
{
    using R = AssistantLimitAnswer;
    return std::tuple{json::Field{"name", &R::name},
                      json::Field{"usedPercent", &R::usedPercent},
                      json::Field{"windowMinutes", &R::windowMinutes},
                      json::Field{"resetsAt", &R::resetsAt}, json::Field{"toldAt", &R::toldAt}};
}
static_assert(json::coversAllMembers<AssistantLimitAnswer>());

struct AssistantToolAnswer {
    std::string tool{};
    std::vector<AssistantDayAnswer> days{};
    std::vector<AssistantNameAnswer> models{};
    std::vector<AssistantNameAnswer> projects{};
    std::optional<AssistantWindowAnswer> window{}; // the five hours that run now
    Assistants::TokenCounts week{};
    std::vector<AssistantLimitAnswer> limits{}; // empty: not told
};
consteval auto jsonFields(Of<AssistantToolAnswer>)
{
    using R = AssistantToolAnswer;
    return std::tuple{json::Field{"tool", &R::tool},     json::Field{"days", &R::days},
                      json::Field{"models", &R::models}, json::Field{"projects", &R::projects},
                      json::Field{"window", &R::window}, json::Field{"week", &R::week},
                      json::Field{"limits", &R::limits}};
}
static_assert(json::coversAllMembers<AssistantToolAnswer>());

// Of assistants.
struct AssistantsAnswer {
    std::vector<AssistantToolAnswer> tools{};
    std::uint64_t files{};
    std::uint64_t skippedLines{};
    std::uint64_t unreadableFiles{};
};
consteval auto jsonFields(Of<AssistantsAnswer>)
{
    using R = AssistantsAnswer;
    return std::tuple{json::Field{"tools", &R::tools}, json::Field{"files", &R::files},
                      json::Field{"skippedLines", &R::skippedLines},
                      json::Field{"unreadableFiles", &R::unreadableFiles}};
}
static_assert(json::coversAllMembers<AssistantsAnswer>());

// Of assistants sessions: a list of these.
struct AssistantSessionAnswer {
    std::string tool{};
    std::string session{};
    std::string folder{};
    KestCore::AssistantState state{};
    std::string at{};
};
consteval auto jsonFields(Of<AssistantSessionAnswer>)
{
    using R = AssistantSessionAnswer;
    return std::tuple{json::Field{"tool", &R::tool}, json::Field{"session", &R::session},
                      json::Field{"folder", &R::folder}, json::Field{"state", &R::state},
                      json::Field{"at", &R::at}};
}
static_assert(json::coversAllMembers<AssistantSessionAnswer>());

// Of assistants connect and disconnect.
struct AssistantChangeAnswer {
    std::string tool{};
    std::string file{};
    bool needed{};                     // something is, or was, to be changed
    bool written{};                    // by this command
    std::optional<std::string> copy{}; // of the file as it was
    std::string diff{};
};
consteval auto jsonFields(Of<AssistantChangeAnswer>)
{
    using R = AssistantChangeAnswer;
    return std::tuple{json::Field{"tool", &R::tool},     json::Field{"file", &R::file},
                      json::Field{"needed", &R::needed}, json::Field{"written", &R::written},
                      json::Field{"copy", &R::copy},     json::Field{"diff", &R::diff}};
}
static_assert(json::coversAllMembers<AssistantChangeAnswer>());

[[nodiscard]] Result<AssistantsAnswer> answerFor(const std::vector<Assistants::ToolUse> &tools,
                                                 const Assistants::LogTotals &totals);
[[nodiscard]] Result<std::vector<AssistantSessionAnswer>>
answerFor(const std::vector<Assistants::LoggedSession> &sessions);

} // namespace Cli
