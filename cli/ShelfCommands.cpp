// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Shelf.h"
#include "cli/ItemAnswers.h"
#include "cli/ListCommands.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

// shelf: files and texts that wait to be picked up.
namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::RecordList;
using Records = std::vector<LocalRecord>;

Result<void> runAdd(const ListTool &tool, const std::vector<std::filesystem::path> &paths)
{
    const auto shelve = [&]() -> Result<Records> {
        KEST_TRY(auto store, tool.session->openStore());
        return KestCore::shelve(store, paths, Base::wallClock());
    };
    KEST_TRY(const Records items, shelve());
    return printItems(tool.session->console, items, tool.whenEmpty);
}

Result<void> runAddText(const ListTool &tool, const std::string &argument)
{
    KEST_TRY(std::string text, textOrInput(argument));
    KEST_TRY(const auto item, KestCore::makeShelfText(std::move(text)));
    return runOnList(tool, [&](RecordList &list) -> Result<Records> {
        KEST_TRY(auto added, list.add(item, KestCore::ListEnd::back));
        return Records{std::move(added)};
    });
}

// The store is given back while the question stands.
Result<void> runClear(const ListTool &tool, bool isConfirmed)
{
    const auto count = [&]() -> Result<std::size_t> {
        KEST_TRY(auto store, tool.session->openStore());
        KEST_TRY(const auto items, RecordList(store, tool.kind, Base::wallClock()).items());
        return items.size();
    };
    if (!isConfirmed) {
        KEST_TRY(const std::size_t size, count());
        if (size > 0 && !(Console::isInteractive() &&
                          Console::confirms(fmt::format(
                              "Take {} items off the shelf? The files stay.", size)))) {
            return std::unexpected(
                KestError::invalidData("Confirm before clearing the shelf, as --yes does"));
        }
    }
    return runOnList(tool, [](RecordList &list) { return list.removeAll(); });
}

} // namespace

void addShelfCommands(CLI::App &program, Session &session)
{
    struct Arguments {
        std::vector<std::filesystem::path> paths{};
        std::string text{};
        bool isConfirmed{};
    };
    const auto args = std::make_shared<Arguments>();
    const ListTool tool{
        .command = program.add_subcommand("shelf", "Keeps files and texts at hand for a while"),
        .session = &session,
        .kind = KestCore::kShelfKind,
        .whenEmpty = "The shelf is empty."};
    tool.command->require_subcommand(1);
    addBasicCommands(tool);
    CLI::App *add = tool.command->add_subcommand("add", "Puts files on the shelf");
    add->add_option("PATH", args->paths, "Files or folders, which stay where they are")
        ->required();
    add->callback([=] { tool.session->command = [=] { return runAdd(tool, args->paths); }; });
    CLI::App *text = tool.command->add_subcommand("add-text", "Puts a text on the shelf");
    text->add_option("TEXT", args->text, "The text, or - for standard input")->required();
    text->callback(
        [=] { tool.session->command = [=] { return runAddText(tool, args->text); }; });
    addRestoreCommand(tool);
    CLI::App *clear = tool.command->add_subcommand("clear", "Takes everything off the shelf");
    clear->add_flag("--yes", args->isConfirmed, "Without asking");
    clear->callback(
        [=] { tool.session->command = [=] { return runClear(tool, args->isConfirmed); }; });
}

} // namespace Cli
