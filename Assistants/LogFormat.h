// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Assistants/TokenCounts.h"
#include "Base/Instant.h"
#include "KestCore/Surfaces/AssistantEvent.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

// How a tool writes down what it did. Of a line only counts, names of models, times and the
// name of the folder are taken; the words of people and of models are passed over unread.
namespace Assistants
{

// The use of one answer of a model.
struct LoggedUse {
    std::string id{}; // of the answer, which may stand in several lines; empty if not told
    std::string model{};
    Base::Instant at{};
    TokenCounts tokens{};
};

// How much of an allowance is used, as the tool was told by its service.
struct Limit {
    std::string name{};
    double usedPercent{};
    std::optional<double> windowMinutes{};
    std::optional<Base::Instant> resetsAt{};
    Base::Instant toldAt{};

    bool operator==(const Limit &) const = default;
};

// The last thing that happened in a session.
struct LoggedStep {
    Base::Instant at{};
    KestCore::AssistantState state{};
};

struct LineFinding {
    std::optional<LoggedUse> use{};
    std::vector<Limit> limits{};
    std::optional<LoggedStep> step{};
};

// What earlier lines of the same log said that later ones rest on.
struct LogMemory {
    std::string session{};
    std::string folder{}; // the last part of the path only
    std::string model{};
    TokenCounts total{}; // of the log so far, where the tool counts so
};

// One tool's logs: files of JSON lines somewhere below a folder.
struct LogFormat {
    std::string_view tool{};
    std::string_view folder{}; // in the user's home
    // A line that matters has one of these in it. Only such lines are given to `read`.
    std::span<const std::string_view> markers{};
    // Fails with invalidData for a line that is damaged.
    Result<LineFinding> (*read)(const json::PaddedText &line, LogMemory &memory){};
    // Of the last line, which may have no marker; nothing for one that says nothing of it.
    std::optional<LoggedStep> (*step)(const json::PaddedText &line, LogMemory &memory){};
};

const LogFormat &claudeCodeLogs();
const LogFormat &codexLogs();
std::span<const LogFormat *const> logFormats();

// The last part of a path, short and printable; empty when there is none.
std::string folderName(std::string_view path);
// A name of the tool's own, such as a model's, short and printable.
std::string cleanName(std::string_view name);
// Fails with invalidData for a time that is none or lies outside of all reason.
[[nodiscard]] Result<Base::Instant> loggedInstant(std::string_view text);

} // namespace Assistants
