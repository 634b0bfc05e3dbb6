// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Assistants/LogFormat.h"
#include "Base/JsonReader.h"

#include <array>

namespace Assistants
{

namespace
{

struct Usage {
    std::optional<std::int64_t> input{};
    std::optional<std::int64_t> output{};
    std::optional<std::int64_t> cacheWrite{};
    std::optional<std::int64_t> cacheRead{};
};
consteval auto jsonFields(Of<Usage>)
{
    using R = Usage;
    return std::tuple{json::Field{"input_tokens", &R::input},
                      json::Field{"cache_creation_input_tokens", &R::cacheWrite},
                      json::Field{"cache_read_input_tokens", &R::cacheRead},
                      json::Field{"output_tokens", &R::output}};
}
static_assert(json::coversAllMembers<Usage>());

struct Message {
    std::optional<std::string> id{};
    std::optional<std::string> model{};
    std::optional<std::string> stopReason{};
    std::optional<Usage> usage{};
};
consteval auto jsonFields(Of<Message>)
{
    using R = Message;
    return std::tuple{json::Field{"id", &R::id}, json::Field{"model", &R::model},
                      json::Field{"stop_reason", &R::stopReason},
                      json::Field{"usage", &R::usage}};
}
static_assert(json::coversAllMembers<Message>());

struct Line {
    std::string type{};
    std::optional<std::string> cwd{};
    std::optional<std::string> sessionId{};
    std::optional<Message> message{};
    std::optional<std::string> requestId{};
    std::optional<std::string> timestamp{};
};
consteval auto jsonFields(Of<Line>)
{
    using R = Line;
    return std::tuple{
        json::Field{"cwd", &R::cwd},         json::Field{"sessionId", &R::sessionId},
        json::Field{"message", &R::message}, json::Field{"requestId", &R::requestId},
        json::Field{"type", &R::type},       json::Field{"timestamp", &R::timestamp}};
}
static_assert(json::coversAllMembers<Line>());

void remember(const Line &line, LogMemory &memory)
{
    // Nearly every line says the same as the one before it.
    if (line.sessionId && *line.sessionId != memory.session) {
        memory.session = cleanName(*line.sessionId);
    }
    if (line.cwd && (memory.folder.empty() || !line.cwd->ends_with("/" + memory.folder))) {
        memory.folder = folderName(*line.cwd);
    }
}

LoggedStep stepOf(const Line &line, Base::Instant at)
{
    const bool isOver = line.type == "assistant" && line.message &&
                        line.message->stopReason.value_or("") == "end_turn";
    using enum KestCore::AssistantState;
    return {.at = at, .state = isOver ? waiting : working};
}

Result<LineFinding> read(const json::PaddedText &text, LogMemory &memory)
{
    KEST_TRY(const Line line, json::decode<Line>(text));
    remember(line, memory);
    if (line.type != "assistant" || !line.message || !line.message->usage) {
        return LineFinding{};
    }
    if (!line.timestamp) {
        return LineFinding{};
    }
    const Message &message = *line.message;
    // The tool's own notices stand in the place of answers, under a name in brackets.
    if (message.model && message.model->starts_with('<')) {
        return LineFinding{};
    }
    if (message.model.value_or("") != memory.model) {
        memory.model = cleanName(message.model.value_or(""));
    }
    LoggedUse use{.id = message.id.value_or(line.requestId.value_or("")),
                  .model = memory.model,
                  .tokens = {.input = message.usage->input,
                             .output = message.usage->output,
                             .cacheWrite = message.usage->cacheWrite,
                             .cacheRead = message.usage->cacheRead}};
    KEST_TRY(use.at, loggedInstant(*line.timestamp));
    const LoggedStep step = stepOf(line, use.at);
    return LineFinding{.use = std::move(use), .step = step};
}

std::optional<LoggedStep> step(const json::PaddedText &text, LogMemory &memory)
{
    const auto decoded = json::decode<Line>(text);
    if (!decoded) {
        return std::nullopt;
    }
    const Line &line = *decoded;
    if (!line.timestamp || (line.type != "assistant" && line.type != "user")) {
        return std::nullopt;
    }
    remember(line, memory);
    const auto at = loggedInstant(*line.timestamp);
    if (!at) {
        return std::nullopt;
    }
    return stepOf(line, *at);
}

} // namespace

const LogFormat &claudeCodeLogs()
{
    static constexpr std::array<std::string_view, 1> kMarkers{"\"usage\":{"};
    static constexpr LogFormat kFormat{.tool = "claude-code",
                                       .folder = ".claude/projects",
                                       .markers = kMarkers,
                                       .read = read,
                                       .step = step};
    return kFormat;
}

} // namespace Assistants
