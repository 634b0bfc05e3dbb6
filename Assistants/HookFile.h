// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Vocabulary.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The file in which a tool keeps what it runs at its events.
namespace Assistants
{

struct HookTool {
    enum class Shape : std::uint8_t {
        grouped, // each entry is a group with a list of commands
        flat,    // each entry is a command
    };

    std::string_view name{};
    std::string_view title{};
    std::string_view folder{}; // in the user's home; missing where the tool is
    std::string_view file{};   // in that
    Shape shape{};
    std::vector<std::string_view> events{};
    std::string_view whenNew{}; // what a file begins with that is not there yet
};

const std::vector<HookTool> &hookTools();
// Null when no tool of that name can be connected.
const HookTool *findHookTool(std::string_view name);

enum class HookChange : std::uint8_t { connect, disconnect };

// The file's text as the change leaves it: every other byte stays. Equal to `text` when there
// is nothing to do. Fails with invalidData for a file that it cannot understand. `command` is
// a program as a shell takes it, which "hook NAME" is put behind.
[[nodiscard]] Base::Result<std::string> changedHooks(const HookTool &tool, HookChange change,
                                                     std::string_view text,
                                                     const std::string &command);

// How a shell of the user's calls that very kest: by its name where it finds it so.
std::string hookCommand(const std::filesystem::path &kest);

// Whether a shell's command is a call of ours for that tool, wherever kest lies.
bool isOurHook(const HookTool &tool, std::string_view command);

// A change as it would be made to the user's file.
struct PlannedChange {
    std::filesystem::path file{};
    std::optional<std::string> before{}; // absent while there is no file
    std::string after{};

    bool isNeeded() const { return before.value_or("") != after; }
};

// Fails with unavailable when the tool is not there, and when the file is not the user's own.
[[nodiscard]] Base::Result<PlannedChange> planHooks(const HookTool &tool, HookChange change,
                                                    const std::filesystem::path &home,
                                                    const std::string &command);

// Writes it. Before its first change the user's file is kept beside it, and that copy is never
// written again: its name is returned, unless there is none. Fails with unavailable when the
// file is not as it was planned with.
[[nodiscard]] Base::Result<std::optional<std::filesystem::path>>
writeHooks(const PlannedChange &plan);

} // namespace Assistants
