// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Tools/Messages.h"
#include "cli/ListCommands.h"

#include <CLI/CLI.hpp>

// message: the short texts that move through the compact strip.
namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::MessageAnimation;
using KestCore::MessageChange;
using KestCore::RecordList;
using Records = std::vector<LocalRecord>;

struct Arguments {
    std::string id{};
    MessageChange change{};
};

void addAnimation(CLI::App *command, const std::shared_ptr<Arguments> &args)
{
    std::vector<std::string> names;
    for (const auto &[animation, text] : enumTexts(Base::Of<MessageAnimation>{})) {
        names.emplace_back(text);
    }
    command
        ->add_option_function<std::string>(
            "--animation",
            [=](const std::string &name) {
                args->change.animation = Base::fromText<MessageAnimation>(name);
            },
            "How it moves")
        ->check(CLI::IsMember(names));
}

Result<Records> add(RecordList &list, const MessageChange &given)
{
    KEST_TRY(auto message, KestCore::makeMessage(given));
    KEST_TRY(message, list.add(std::move(message), KestCore::ListEnd::back));
    return Records{std::move(message)};
}

void addEdit(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *edit = tool.command->add_subcommand("edit", "Changes a message");
    edit->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    edit->add_option("--text", args->change.text, "Its new text");
    addAnimation(edit, args);
    edit->callback([=] {
        if (!args->change.text && !args->change.animation) {
            throw CLI::RequiredError("--text or --animation");
        }
        tool.session->command = [=] {
            return runOnList(tool, [=](RecordList &list) -> Result<Records> {
                KEST_TRY(auto message, list.edit(args->id, [&](LocalRecord &record) {
                    return KestCore::changeMessage(record, args->change);
                }));
                return Records{std::move(message)};
            });
        };
    });
}

} // namespace

void addMessageCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const ListTool tool{
        .command = program.add_subcommand("message", "Keeps the messages of the strip"),
        .session = &session,
        .kind = KestCore::kMessageKind,
        .whenEmpty = "No messages yet."};
    tool.command->require_subcommand(1);
    addBasicCommands(tool);
    CLI::App *adding =
        addListCommand(tool, "add", "Adds a message, at the end",
                       [=](RecordList &list) { return add(list, args->change); });
    adding->add_option("TEXT", args->change.text, "One line of 1 to 200 characters")
        ->required();
    addAnimation(adding, args);
    addEdit(tool, args);
    addRestoreCommand(tool);
}

} // namespace Cli
