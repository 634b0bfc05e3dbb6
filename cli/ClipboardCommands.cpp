// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/ClipboardKey.h"
#include "KestCore/Clipboard/ClipboardVault.h"
#include "KestCore/Models/RecordIds.h"
#include "SecretService/SecretService.h"
#include "cli/Answers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>

// clipboard: what was copied, for scripts and for pipes.
namespace Cli
{

namespace
{

using KestCore::ClipboardEntry;
using KestCore::ClipboardHistory;
using KestCore::ClipboardListing;
using KestCore::ClipboardPayload;
using Listings = std::vector<ClipboardListing>;
using Use = std::function<Result<void>(ClipboardHistory &)>;

Result<Base::AesKey> readKey()
{
    const auto refuse = [](Base::SecretFailure failure) {
        return std::unexpected(KestError::unavailable(std::move(failure.message)));
    };
    auto secrets = Keyring::open(Console::isInteractive() ? Keyring::Prompts::allowed
                                                          : Keyring::Prompts::never);
    if (!secrets) {
        return refuse(std::move(secrets).error());
    }
    auto key = KestCore::clipboardKey(**secrets);
    if (!key) {
        return refuse(std::move(key).error());
    }
    return *std::move(key);
}

// The key comes first: without one not even an empty history is put on the disk, and nobody
// else waits for the store while a password is typed.
Result<void> withHistory(const Session &session, const Use &use)
{
    KEST_TRY(Base::AesKey key, readKey());
    KEST_TRY(auto store, session.openStore());
    ClipboardHistory history{store, std::move(key)};
    return use(history);
}

Result<std::vector<ClipboardAnswer>> answersFor(const Listings &listings)
{
    std::vector<ClipboardAnswer> answers;
    for (const auto &[entry, display] : listings) {
        KEST_TRY(std::string createdAt, Base::toIso8601(entry.createdAt));
        answers.push_back({.id = entry.id,
                           .kind = entry.kind,
                           .createdAt = std::move(createdAt),
                           .byteCount = entry.byteCount,
                           .favourite = entry.favourite,
                           .display = display});
    }
    return answers;
}

// A text mostly ends with a line, which a list need not show.
std::string oneLine(std::string_view display)
{
    return printable(display.substr(0, display.find_last_not_of(" \t\r\n") + 1));
}

// Shows some of the entries; the others are there to keep shortened ids apart.
Result<void> print(const Console &console, const Listings &listings, const Listings &all,
                   const char *whenEmpty)
{
    KEST_TRY(const auto answers, answersFor(listings));
    return console.answer(answers, [&] {
        const std::size_t idSize =
            KestCore::shortIdLength(KestCore::idsOf(all, &ClipboardListing::entry));
        std::vector<std::vector<std::string>> rows;
        for (const auto &[entry, display] : listings) {
            rows.push_back({console.styled(printable(entry.id.substr(0, idSize)), Style::faint),
                            entry.favourite ? "*" : " ", std::string{Base::textOf(entry.kind)},
                            localTime(Base::milliseconds1970(entry.createdAt)),
                            oneLine(display)});
        }
        console.table(rows);
        if (rows.empty()) {
            console.line(whenEmpty);
        }
    });
}

Listings onlyThe(const ClipboardEntry &entry, Listings listings)
{
    std::erase_if(listings, [&](const auto &line) { return line.entry.id != entry.id; });
    return listings;
}

// The answer of a command that was about one entry.
Result<void> printOne(const Console &console, ClipboardHistory &history,
                      const ClipboardEntry &entry)
{
    KEST_TRY(const Listings all, history.list());
    return print(console, onlyThe(entry, all), all, "It is gone.");
}

Result<void> showContent(const Console &console, const ClipboardPayload &payload)
{
    if (console.isJson) {
        KEST_TRY(const std::string document, Base::json::encode(payload));
        console.line(document);
    } else if (payload.image) {
        if (isatty(STDOUT_FILENO) != 0) {
            return std::unexpected(KestError::invalidData(
                "An image cannot be shown on a terminal; send it to a file"));
        }
        console.text(
            {reinterpret_cast<const char *>(payload.image->data()), payload.image->size()});
    } else if (payload.text) {
        console.text(*payload.text);
    } else {
        for (const auto &file : payload.files) {
            console.line(file.name);
        }
    }
    return {};
}

// One byte more than is allowed tells that there is too much.
std::string readInput()
{
    std::string text(ClipboardPayload::kLargestText + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), stdin));
    return text;
}

Result<void> runAdd(const Session &session)
{
    const auto payload = KestCore::clipboardTextPayload(readInput());
    KEST_CHECK(payload.validate());
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const auto entry, history.add(payload, Base::wallClock()));
        return printOne(session.console, history, entry);
    });
}

Result<void> runRemove(const Session &session, const std::string &id)
{
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const auto entry, history.find(id));
        KEST_TRY(const Listings all, history.list());
        KEST_CHECK(history.remove(entry.id));
        return print(session.console, onlyThe(entry, all), all, "");
    });
}

Result<void> runFavourite(const Session &session, const std::string &id)
{
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const auto found, history.find(id));
        KEST_TRY(const auto entry, history.setFavourite(found.id, !found.favourite));
        return printOne(session.console, history, entry);
    });
}

Result<void> runClear(const Session &session, bool isConfirmed)
{
    if (!isConfirmed && (!Console::isInteractive() ||
                         !Console::confirms("Remove everything but the favourites?"))) {
        return std::unexpected(
            KestError::invalidData("Confirm with --yes before clearing the clipboard history"));
    }
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_CHECK(history.clear());
        KEST_TRY(const Listings left, history.list());
        return print(session.console, left, left, "The clipboard history is empty.");
    });
}

using OnEntry = Result<void> (*)(const Session &, const std::string &);

Result<void> runList(const Session &session)
{
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const Listings all, history.list());
        return print(session.console, all, all, "The clipboard history is empty.");
    });
}

Result<void> runSearch(const Session &session, const std::string &words)
{
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const Listings found, history.search(words));
        KEST_TRY(const Listings all, history.list());
        return print(session.console, found, all, "Nothing in the history has these words.");
    });
}

Result<void> runShow(const Session &session, const std::string &id)
{
    return withHistory(session, [&](ClipboardHistory &history) -> Result<void> {
        KEST_TRY(const auto entry, history.find(id));
        KEST_TRY(const auto payload, history.content(entry.id));
        return showContent(session.console, payload);
    });
}

void addPlain(CLI::App *clipboard, Session &session, const char *name, const char *help,
              Result<void> (*run)(const Session &))
{
    CLI::App *command = clipboard->add_subcommand(name, help);
    command->callback(
        [=, &session] { session.command = [=, &session] { return run(session); }; });
}

void addOnEntry(CLI::App *clipboard, Session &session, const char *name, const char *help,
                const char *argument, OnEntry run)
{
    const auto value = std::make_shared<std::string>();
    CLI::App *command = clipboard->add_subcommand(name, help);
    command->add_option(argument, *value)->required();
    command->callback(
        [=, &session] { session.command = [=, &session] { return run(session, *value); }; });
}

} // namespace

void addClipboardCommands(CLI::App &program, Session &session)
{
    CLI::App *clipboard =
        program.add_subcommand("clipboard", "Keeps what was copied, encrypted");
    clipboard->require_subcommand(1);
    addPlain(clipboard, session, "list", "Lists the history, favourites first", runList);
    addOnEntry(clipboard, session, "search", "Finds texts and links", "TEXT", runSearch);
    addOnEntry(clipboard, session, "show", "Prints the content of an entry", "ID", runShow);
    addPlain(clipboard, session, "add", "Keeps the text on standard input", runAdd);
    addOnEntry(clipboard, session, "remove", "Removes an entry", "ID", runRemove);
    addOnEntry(clipboard, session, "favourite", "Makes an entry a favourite, or no longer one",
               "ID", runFavourite);
    const auto isConfirmed = std::make_shared<bool>(false);
    CLI::App *clear =
        clipboard->add_subcommand("clear", "Removes everything but the favourites");
    clear->add_flag("--yes", *isConfirmed, "Do not ask");
    clear->callback([=, &session] {
        session.command = [=, &session] { return runClear(session, *isConfirmed); };
    });
}

} // namespace Cli
