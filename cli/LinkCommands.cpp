// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/RecordIds.h"
#include "KestCore/Tools/Links.h"
#include "cli/ItemAnswers.h"
#include "cli/ListCommands.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

// link: bookmarks of web pages.
namespace Cli
{

namespace
{

using KestCore::LinkChange;
using KestCore::LocalRecord;
using KestCore::RecordList;
using Records = std::vector<LocalRecord>;

struct Arguments {
    LinkChange change{};
    std::string id{};
    std::vector<std::string> words{};
};

Result<Records> add(RecordList &list, const LinkChange &given)
{
    KEST_TRY(const Records others, list.items());
    KEST_TRY(auto link, KestCore::makeLink(given, others));
    KEST_TRY(link, list.add(std::move(link), KestCore::ListEnd::back));
    return Records{std::move(link)};
}

Result<Records> edit(RecordList &list, const std::string &id, const LinkChange &change)
{
    KEST_TRY(const Records others, list.items());
    KEST_TRY(auto link, list.edit(id, [&](LocalRecord &record) {
        return KestCore::changeLink(record, change, others);
    }));
    return Records{std::move(link)};
}

// The address goes to the desktop's opener as one argument; it begins with its scheme, so it
// can't be taken for an option.
Result<void> openAddress(std::string address)
{
    const auto failed = [](const std::string &why) {
        return std::unexpected(KestError::unavailable("xdg-open " + why));
    };
    std::string program = "xdg-open";
    char *argv[] = {program.data(), address.data(), nullptr};
    pid_t child = 0;
    const int code = posix_spawnp(&child, argv[0], nullptr, nullptr, argv, environ);
    if (code != 0) {
        return failed("could not be started: " + std::generic_category().message(code));
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? Result<void>{}
                                                         : failed("could not open " + address);
}

Result<void> runOpen(const Session &session, const std::string &id)
{
    const auto find = [&]() -> Result<LocalRecord> {
        KEST_TRY(auto store, session.openStore());
        return RecordList(store, KestCore::kLinkKind, Base::wallClock()).find(id);
    };
    KEST_TRY(const LocalRecord record, find());
    KEST_TRY(const auto link,
             Base::json::decode<KestCore::SavedLink>(std::string_view{record.body}));
    KEST_CHECK(openAddress(link.url));
    return session.console.isJson ? printItems(session.console, {record}, {&record.id, 1}, "")
                                  : Result<void>{};
}

Result<void> runSearch(const Session &session, const std::vector<std::string> &words)
{
    KEST_TRY(auto store, session.openStore());
    KEST_TRY(const auto links,
             RecordList(store, KestCore::kLinkKind, Base::wallClock()).items());
    const std::string query = fmt::format("{}", fmt::join(words, " "));
    return printHits(session.console, KestCore::searchLinks(links, query),
                     KestCore::idsOf(links));
}

void addAddAndEdit(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *adding =
        addListCommand(tool, "add", "Saves a link, at the end",
                       [=](RecordList &list) { return add(list, args->change); });
    adding->add_option("URL", args->change.address, "An address; https:// may be left out")
        ->required();
    CLI::App *editing = tool.command->add_subcommand("edit", "Changes a link");
    editing->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    editing->add_option("--url", args->change.address, "Its new address");
    for (CLI::App *command : {adding, editing}) {
        command->add_option("--title", args->change.title, "Its title; else the host is");
        command->add_option("--note", args->change.note, "What is to be said about it");
    }
    editing->callback([=] {
        const LinkChange &change = args->change;
        if (!change.address && !change.title && !change.note) {
            throw CLI::RequiredError("--url, --title or --note");
        }
        tool.session->command = [=] {
            return runOnList(
                tool, [=](RecordList &list) { return edit(list, args->id, args->change); });
        };
    });
}

} // namespace

void addLinkCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const ListTool tool{.command = program.add_subcommand("link", "Keeps links to web pages"),
                        .session = &session,
                        .kind = KestCore::kLinkKind,
                        .whenEmpty = "No links yet."};
    tool.command->require_subcommand(1);
    addBasicCommands(tool);
    addAddAndEdit(tool, args);
    addPinCommands(tool);
    addRestoreCommand(tool);
    CLI::App *search = tool.command->add_subcommand("search", "Finds links by their words");
    search->add_option("TEXT", args->words, "Words of the title, address or note")->required();
    search->callback(
        [=] { tool.session->command = [=] { return runSearch(*tool.session, args->words); }; });
    CLI::App *open = tool.command->add_subcommand("open", "Opens a link in the browser");
    open->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    open->callback(
        [=] { tool.session->command = [=] { return runOpen(*tool.session, args->id); }; });
}

} // namespace Cli
