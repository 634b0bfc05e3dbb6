// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Devotional/Content.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <algorithm>
#include <memory>

// What the store holds: history, state, companion and records.
namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::SessionRecord;
using KestCore::StateStore;

Result<void> printHistory(const Session &session)
{
    KEST_TRY(const StateStore store, session.openStore());
    const auto &records = store.state().devotional.records;
    const std::vector<SessionRecord> newestFirst{records.items().rbegin(),
                                                 records.items().rend()};
    return session.console.answer(newestFirst, [&] {
        const auto &dhikr = KestCore::contentCatalogue().dhikr;
        std::vector<std::vector<std::string>> rows;
        for (const SessionRecord &record : newestFirst) {
            const auto &phrase = KestCore::phraseById(record.dhikrId, dhikr, dhikr.front());
            const std::string count =
                record.target ? fmt::format("{} of {}", record.count, *record.target)
                              : std::to_string(record.count);
            rows.push_back({localTime(record.endedAt), count, phrase.transliteration});
        }
        session.console.table(rows);
        if (rows.empty()) {
            session.console.line("No finished sessions yet.");
        }
    });
}

// These two are documents for programs and for the curious; both read them best as they are.
Result<void> printState(const Session &session)
{
    KEST_TRY(const StateStore store, session.openStore());
    KEST_TRY(const std::string document, Base::json::encode(store.state()));
    session.console.line(document);
    return {};
}

Result<void> printCompanion(const Session &session)
{
    KEST_TRY(const StateStore store, session.openStore());
    KEST_TRY(const std::string document, Base::json::encode(store.companion()));
    session.console.line(document);
    return {};
}

Result<void> printRecords(const Session &session, const std::string &kind)
{
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(const auto snapshot, store.snapshot());
    std::vector<LocalRecord> records;
    for (const auto &record : snapshot.records) {
        if (kind.empty() || record->kind == kind) {
            records.push_back(*record);
        }
    }
    return session.console.answer(records, [&] {
        std::vector<std::vector<std::string>> rows;
        for (const LocalRecord &record : records) {
            rows.push_back({printable(record.id),
                            session.console.styled(printable(record.kind), Style::faint),
                            localTime(record.updated), printable(record.title)});
        }
        session.console.table(rows);
        if (rows.empty()) {
            session.console.line("No records.");
        }
    });
}

using Command = Result<void> (*)(const Session &);

void addDocument(CLI::App &program, Session &session, const char *name, const char *help,
                 Command print)
{
    program.add_subcommand(name, help)->callback([=, &session] {
        session.command = [=, &session] { return print(session); };
    });
}

} // namespace

void addDocumentCommands(CLI::App &program, Session &session)
{
    addDocument(program, session, "history", "Lists finished sessions, newest first",
                printHistory);
    addDocument(program, session, "state", "Prints the stored state as JSON", printState);
    addDocument(program, session, "companion", "Prints the stored dock and workspaces as JSON",
                printCompanion);
    const auto kind = std::make_shared<std::string>();
    CLI::App *records = program.add_subcommand("records", "Lists the stored records");
    records->add_option("--kind", *kind, "Only records of this kind, such as note");
    records->callback([=, &session] {
        session.command = [=, &session] { return printRecords(session, *kind); };
    });
}

} // namespace Cli
