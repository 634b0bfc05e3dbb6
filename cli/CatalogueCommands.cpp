// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <memory>

// What ships with the program: phrases, names and tools.
namespace Cli
{

namespace
{

using KestCore::Phrase;

Result<void> printPhrases(const Console &console, const std::vector<Phrase> &all,
                          const std::string &search)
{
    std::vector<Phrase> found;
    for (const Phrase *phrase : KestCore::searchPhrases(all, search)) {
        found.push_back(*phrase);
    }
    return console.answer(found, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const Phrase &phrase : found) {
            rows.push_back({console.styled(phrase.id, Style::strong), phrase.transliteration,
                            phrase.arabic});
        }
        console.table(rows);
        if (found.empty()) {
            console.line("Nothing matches.");
        }
    });
}

Result<void> printTools(const Session &session)
{
    const auto &tools = KestCore::ToolRegistry::tools();
    return session.console.answer(tools, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const auto &tool : tools) {
            rows.push_back({session.console.styled(tool.id, Style::strong), tool.title,
                            tool.status, tool.summary});
        }
        session.console.table(rows);
    });
}

void addPhraseList(CLI::App &program, Session &session, const char *name, const char *help,
                   const std::vector<Phrase> &(*list)())
{
    const auto search = std::make_shared<std::string>();
    CLI::App *command = program.add_subcommand(name, help);
    command->add_option(
        "--search", *search,
        "Words to look for, in Arabic or Latin letters, without regard to marks");
    command->callback([=, &session] {
        session.command = [=, &session] {
            return printPhrases(session.console, list(), *search);
        };
    });
}

} // namespace

void addCatalogueCommands(CLI::App &program, Session &session)
{
    addPhraseList(program, session, "phrases", "Lists the phrases of remembrance",
                  []() -> const auto & { return KestCore::contentCatalogue().dhikr; });
    addPhraseList(program, session, "names", "Lists the Names",
                  []() -> const auto & { return KestCore::contentCatalogue().names; });
    program.add_subcommand("tools", "Lists the tools")->callback([&session] {
        session.command = [&session] { return printTools(session); };
    });
}

} // namespace Cli
