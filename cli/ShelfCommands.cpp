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

struct Arguments {
    std::vector<std::filesystem::path> paths{};
    std::string id{};
    std::string text{};
    bool isConfirmed{};
};

Result<void> runAdd(const ListTool &tool, const std::vector<std::filesystem::path> &paths)
{
    return runOnList(tool, [&](RecordList &list) { return KestCore::shelve(list, paths); });
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

// A text as it is; of a file, the path where it is now.
Result<void> runShow(const Session &session, const std::string &id)
{
    const auto find = [&]() -> Result<LocalRecord> {
        KEST_TRY(auto store, session.openStore());
        return RecordList(store, KestCore::kShelfKind, Base::wallClock()).find(id);
    };
    KEST_TRY(const LocalRecord record, find());
    if (session.console.isJson) {
        return printItems(session.console, {record}, {&record.id, 1}, "");
    }
    const auto item = KestCore::payloadOf<KestCore::ShelfItem>(record);
    if (item.text) {
        printText(session.console, *item.text);
        return {};
    }
    const auto place = KestCore::placeOf(item);
    if (!place.path) {
        return std::unexpected(KestError::unavailable(
            fmt::format("\"{}\" is missing from its folder", item.path.value_or(""))));
    }
    printText(session.console, *place.path);
    return {};
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

void addAdding(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *add = tool.command->add_subcommand("add", "Puts files on the shelf");
    add->add_option("PATH", args->paths, "Files or folders, which stay where they are")
        ->required();
    add->callback([=] { tool.session->command = [=] { return runAdd(tool, args->paths); }; });
    CLI::App *text = tool.command->add_subcommand("add-text", "Puts a text on the shelf");
    text->add_option("TEXT", args->text, "The text, or - for standard input")->required();
    text->callback(
        [=] { tool.session->command = [=] { return runAddText(tool, args->text); }; });
}

} // namespace

void addShelfCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const ListTool tool{
        .command = program.add_subcommand("shelf", "Keeps files and texts at hand for a while"),
        .session = &session,
        .kind = KestCore::kShelfKind,
        .whenEmpty = "The shelf is empty."};
    tool.command->require_subcommand(1);
    addBasicCommands(tool);
    CLI::App *show =
        tool.command->add_subcommand("show", "Prints a text, or where a file is now");
    show->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    show->callback(
        [=] { tool.session->command = [=] { return runShow(*tool.session, args->id); }; });
    addAdding(tool, args);
    addRestoreCommand(tool);
    CLI::App *clear = tool.command->add_subcommand("clear", "Takes everything off the shelf");
    clear->add_flag("--yes", args->isConfirmed, "Without asking");
    clear->callback(
        [=] { tool.session->command = [=] { return runClear(tool, args->isConfirmed); }; });
}

} // namespace Cli
