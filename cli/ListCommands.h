// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KestCore/Tools/RecordList.h"
#include "cli/Session.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

// The commands that notes, links, messages and the shelf have in common.
namespace Cli
{

// One of these tools: its command, and what it keeps.
struct ListTool {
    CLI::App *command{};
    Session *session{};
    const char *kind{};
    const char *whenEmpty{};
};

// Works on the tool's list, now, and prints the items that come of it.
using ListWork =
    std::function<Result<std::vector<KestCore::LocalRecord>>(KestCore::RecordList &)>;
[[nodiscard]] Result<void> runOnList(const ListTool &tool, const ListWork &work);

// A subcommand that does this work.
CLI::App *addListCommand(const ListTool &tool, const char *name, const char *help,
                         const ListWork &work);
// The same on one item: the argument ID, or the beginning of one.
using ItemWork =
    std::function<Result<KestCore::LocalRecord>(KestCore::RecordList &, const std::string &id)>;
CLI::App *addItemCommand(const ListTool &tool, const char *name, const char *help,
                         const ItemWork &work);

// list, move and remove; pin and unpin; restore.
void addBasicCommands(const ListTool &tool);
void addPinCommands(const ListTool &tool);
void addRestoreCommand(const ListTool &tool);

} // namespace Cli
