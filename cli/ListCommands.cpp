// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "cli/ListCommands.h"

#include "KestCore/Models/RecordIds.h"
#include "cli/ItemAnswers.h"

#include <CLI/CLI.hpp>

namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::RecordList;
using Records = std::vector<LocalRecord>;

} // namespace

Result<void> runOnList(const ListTool &tool, const ListWork &work)
{
    std::vector<std::string> ids;
    const auto change = [&]() -> Result<Records> {
        KEST_TRY(auto store, tool.session->openStore());
        RecordList list{store, tool.kind, Base::wallClock()};
        KEST_TRY(auto shown, work(list));
        // What is done is done: that it can't be read again must not deny it.
        if (const auto all = list.items()) {
            ids = KestCore::idsOf(*all);
        }
        return shown;
    };
    KEST_TRY(const Records records, change());
    return printItems(tool.session->console, records, ids, tool.whenEmpty);
}

CLI::App *addListCommand(const ListTool &tool, const char *name, const char *help,
                         const ListWork &work)
{
    CLI::App *command = tool.command->add_subcommand(name, help);
    command->callback([=] { tool.session->command = [=] { return runOnList(tool, work); }; });
    return command;
}

CLI::App *addItemCommand(const ListTool &tool, const char *name, const char *help,
                         const ItemWork &work)
{
    const auto id = std::make_shared<std::string>();
    CLI::App *command =
        addListCommand(tool, name, help, [=](RecordList &list) -> Result<Records> {
            KEST_TRY(auto record, work(list, *id));
            return Records{std::move(record)};
        });
    command->add_option("ID", *id, "As list shows it, or the beginning of it")->required();
    return command;
}

void addBasicCommands(const ListTool &tool)
{
    addListCommand(tool, "list", "Lists them, pinned ones first",
                   [](RecordList &list) { return list.items(); });
    const auto line = std::make_shared<std::size_t>(1);
    CLI::App *move = tool.command->add_subcommand("move", "Puts one at another place");
    const auto id = std::make_shared<std::string>();
    move->add_option("ID", *id, "As list shows it, or the beginning of it")->required();
    move->add_option("POSITION", *line, "Its line in the list, from 1; a large one is the end")
        ->required()
        ->check(CLI::Range(1, 1'000'000));
    move->callback([=] {
        tool.session->command = [=] {
            return runOnList(tool, [=](RecordList &list) -> Result<Records> {
                KEST_TRY([[maybe_unused]] const auto moved, list.move(*id, *line - 1));
                return list.items();
            });
        };
    });
    addItemCommand(tool, "remove", "Removes one; restore brings it back for 30 seconds",
                   [](RecordList &list, const std::string &one) { return list.remove(one); });
}

void addPinCommands(const ListTool &tool)
{
    addItemCommand(tool, "pin", "Keeps one at the front",
                   [](RecordList &list, const std::string &id) { return list.pin(id, true); });
    addItemCommand(tool, "unpin", "Lets one take its place among the others again",
                   [](RecordList &list, const std::string &id) { return list.pin(id, false); });
}

void addRestoreCommand(const ListTool &tool)
{
    addListCommand(tool, "restore", "Puts back what was removed last, for 30 seconds",
                   [](RecordList &list) { return list.restore(); });
}

} // namespace Cli
