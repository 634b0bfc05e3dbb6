// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/LogFormat.h"
#include "Base/JsonReader.h"

#include <array>
#include <cmath>

namespace Assistants
{

namespace
{

struct Usage {
    std::optional<std::int64_t> input{}; // what came from the cache included
    std::optional<std::int64_t> cached{};
    std::optional<std::int64_t> output{};
};
consteval auto jsonFields(Of<Usage>)
{
    using R = Usage;
    return std::tuple{json::Field{"input_tokens", &R::input},
                      json::Field{"cached_input_tokens", &R::cached},
                      json::Field{"output_tokens", &R::output}};
}
static_assert(json::coversAllMembers<Usage>());

struct Info {
    std::optional<Usage> total{};
    std::optional<Usage> last{};
};
consteval auto jsonFields(Of<Info>)
{
    return std::tuple{json::Field{"total_token_usage", &Info::total},
                      json::Field{"last_token_usage", &Info::last}};
}
static_assert(json::coversAllMembers<Info>());

struct Window {
    std::optional<double> usedPercent{};
    std::optional<double> windowMinutes{};
    std::optional<double> resetsInSeconds{};
    std::optional<double> resetsAt{}; // seconds since 1970
};
consteval auto jsonFields(Of<Window>)
{
    using R = Window;
    return std::tuple{json::Field{"used_percent", &R::usedPercent},
                      json::Field{"window_minutes", &R::windowMinutes},
                      json::Field{"resets_in_seconds", &R::resetsInSeconds},
                      json::Field{"resets_at", &R::resetsAt}};
}
static_assert(json::coversAllMembers<Window>());

struct Windows {
    std::optional<Window> primary{};
    std::optional<Window> secondary{};
};
consteval auto jsonFields(Of<Windows>)
{
    return std::tuple{json::Field{"primary", &Windows::primary},
                      json::Field{"secondary", &Windows::secondary}};
}
static_assert(json::coversAllMembers<Windows>());

struct Payload {
    std::optional<std::string> type{};
    std::optional<Info> info{};
    std::optional<Windows> windows{};
    std::optional<std::string> id{};
    std::optional<std::string> cwd{};
    std::optional<std::string> model{};
};
consteval auto jsonFields(Of<Payload>)
{
    using R = Payload;
    return std::tuple{json::Field{"type", &R::type},
                      json::Field{"info", &R::info},
                      json::Field{"rate_limits", &R::windows},
                      json::Field{"id", &R::id},
                      json::Field{"cwd", &R::cwd},
                      json::Field{"model", &R::model}};
}
static_assert(json::coversAllMembers<Payload>());

struct Line {
    std::optional<std::string> timestamp{};
    std::string type{};
    Payload payload{};
};
consteval auto jsonFields(Of<Line>)
{
    return std::tuple{json::Field{"timestamp", &Line::timestamp},
                      json::Field{"type", &Line::type}, json::Field{"payload", &Line::payload}};
}
static_assert(json::coversAllMembers<Line>());

Result<TokenCounts> countsOf(const Usage &usage)
{
    TokenCounts counts{.input = usage.input, .output = usage.output, .cacheRead = usage.cached};
    if (!arePlausible(counts)) {
        return std::unexpected(KestError::invalidData("no count of tokens"));
    }
    if (usage.input && usage.cached) {
        counts.input = std::max<std::int64_t>(*usage.input - *usage.cached, 0);
    }
    return counts;
}

void addLimit(std::vector<Limit> &limits, const char *name, const std::optional<Window> &window,
              Base::Instant at)
{
    constexpr double kMostSeconds = 400 * 86'400.0;
    if (!window || !window->usedPercent || !(*window->usedPercent >= 0) ||
        *window->usedPercent > 1000) {
        return;
    }
    Limit limit{.name = name, .usedPercent = *window->usedPercent, .toldAt = at};
    if (const double minutes = window->windowMinutes.value_or(0);
        minutes > 0 && minutes * 60 <= kMostSeconds) {
        limit.windowMinutes = minutes;
    }
    const double seconds = window->resetsAt ? *window->resetsAt - Base::seconds1970(at)
                                            : window->resetsInSeconds.value_or(-1);
    if (seconds >= 0 && seconds <= kMostSeconds) {
        limit.resetsAt = at + Base::Seconds{seconds};
    }
    limits.push_back(std::move(limit));
}

// A count is written again whenever something else about it changes, so what the whole has
// grown by is what was used.
Result<std::optional<TokenCounts>> usedIn(const Info &info, LogMemory &memory)
{
    if (!info.total) {
        if (!info.last) {
            return std::nullopt;
        }
        KEST_TRY(const TokenCounts last, countsOf(*info.last));
        return last;
    }
    KEST_TRY(const TokenCounts whole, countsOf(*info.total));
    const TokenCounts used = since(memory.total, whole);
    memory.total = whole;
    return total(used).value_or(0) > 0 ? std::optional{used} : std::nullopt;
}

Result<LineFinding> read(const json::PaddedText &text, LogMemory &memory)
{
    KEST_TRY(const Line line, json::decode<Line>(text));
    const Payload &payload = line.payload;
    if (line.type == "session_meta" || line.type == "turn_context") {
        if (line.type == "session_meta" && payload.id) {
            memory.session = cleanName(*payload.id);
        }
        memory.folder = payload.cwd ? folderName(*payload.cwd) : memory.folder;
        memory.model = payload.model ? cleanName(*payload.model) : memory.model;
        return LineFinding{};
    }
    if (!line.timestamp) {
        return LineFinding{};
    }
    if (line.type != "event_msg" || payload.type.value_or("") != "token_count") {
        return LineFinding{};
    }
    KEST_TRY(const Base::Instant at, loggedInstant(*line.timestamp));
    LineFinding finding;
    finding.step = LoggedStep{.at = at, .state = KestCore::AssistantState::working};
    if (payload.info) {
        KEST_TRY(const auto used, usedIn(*payload.info, memory));
        if (used) {
            finding.use = LoggedUse{.model = memory.model, .at = at, .tokens = *used};
        }
    }
    if (payload.windows) {
        addLimit(finding.limits, "primary", payload.windows->primary, at);
        addLimit(finding.limits, "secondary", payload.windows->secondary, at);
    }
    return finding;
}

std::optional<LoggedStep> step(const json::PaddedText &text, LogMemory & /*memory*/)
{
    const auto decoded = json::decode<Line>(text);
    if (!decoded) {
        return std::nullopt;
    }
    const Line &line = *decoded;
    if (!line.timestamp) {
        return std::nullopt;
    }
    const auto at = loggedInstant(*line.timestamp);
    if (!at) {
        return std::nullopt;
    }
    const bool isOver =
        line.type == "event_msg" && line.payload.type.value_or("") == "task_complete";
    using enum KestCore::AssistantState;
    return LoggedStep{.at = *at, .state = isOver ? waiting : working};
}

} // namespace

const LogFormat &codexLogs()
{
    static constexpr std::array<std::string_view, 3> kMarkers{
        "\"token_count\"", "\"session_meta\"", "\"turn_context\""};
    static constexpr LogFormat kFormat{.tool = "codex",
                                       .folder = ".codex/sessions",
                                       .markers = kMarkers,
                                       .read = read,
                                       .step = step};
    return kFormat;
}

} // namespace Assistants
