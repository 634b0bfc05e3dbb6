// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/Secret.h"
#include "KestCore/Clipboard/ClipboardHistory.h"
#include "KestCore/Clipboard/ClipboardKey.h"
#include "KestCore/Clipboard/ClipboardReader.h"
#include "KestCore/Models/RecordIds.h"
#include "SecretService/SecretService.h"
#include "cli/Answers.h"
#include "cli/ItemAnswers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <type_traits>

// clipboard: what was copied, for scripts and for pipes.
namespace Cli
{

namespace
{

using KestCore::ClipboardHistory;
using KestCore::ClipboardListing;
using KestCore::ClipboardPayload;
using Listings = std::vector<ClipboardListing>;

constexpr const char *kEmpty = "The clipboard history is empty.";

template <class T>
Result<T> orRefuse(Base::SecretResult<T> outcome)
{
    if (!outcome) {
        return std::unexpected(KestError::unavailable(std::move(outcome).error().message));
    }
    return *std::move(outcome);
}

// A key that is there comes first: without a keyring not even an empty history is put on the
// disk, and nobody else waits for the store while a password is typed. The store is closed
// again before anything is printed: a pager may hold the output for hours.
template <class Work>
std::invoke_result_t<Work, ClipboardHistory &> withHistory(const Session &session,
                                                           const Work &work)
{
    KEST_TRY(const auto secrets,
             orRefuse(Keyring::open(Console::isInteractive() ? Keyring::Prompts::allowed
                                                             : Keyring::Prompts::never)));
    KEST_TRY(auto key, orRefuse(KestCore::keptClipboardKey(*secrets)));
    if (!key) {
        KEST_CHECK(session.openStore()); // makes the folder, in which the key's lock lies
        KEST_TRY(key, orRefuse(KestCore::clipboardKey(*secrets, session.databaseFile())));
    }
    KEST_TRY(auto store, session.openStore());
    ClipboardHistory history{store, *std::move(key)};
    KEST_CHECK(history.applyRetention(Base::wallClock()));
    return work(history);
}

Result<std::vector<ClipboardAnswer>> answersFor(const Listings &listings)
{
    std::vector<ClipboardAnswer> answers;
    for (const auto &[entry, display, isReadable] : listings) {
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

// As much of the ids as tells them apart, and eight characters at least: later entries may
// begin with the same.
std::size_t shownIdSize(const Listings &listings)
{
    constexpr std::size_t kLeast = 8;
    return std::max(
        kLeast, KestCore::shortIdLength(KestCore::idsOf(listings, &ClipboardListing::entry)));
}

Result<void> print(const Console &console, const Listings &listings, const char *whenEmpty = "")
{
    KEST_TRY(const auto answers, answersFor(listings));
    return console.answer(answers, [&] {
        const std::size_t idSize = shownIdSize(listings);
        std::vector<std::vector<std::string>> rows;
        for (const auto &[entry, display, isReadable] : listings) {
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

// Exactly what was copied for a pipe or a file; a terminal gets nothing that could drive it.
Result<void> showContent(const Console &console, const ClipboardPayload &payload)
{
    const bool isTerminal = isatty(STDOUT_FILENO) != 0;
    if (console.isJson) {
        KEST_TRY(const std::string document, Base::json::encode(payload));
        console.line(document);
    } else if (payload.image && isTerminal) {
        return std::unexpected(KestError::invalidData(
            "An image cannot be shown on a terminal; send it to a file"));
    } else if (payload.image) {
        console.text(
            {reinterpret_cast<const char *>(payload.image->data()), payload.image->size()});
    } else if (payload.text) {
        isTerminal ? printText(console, *payload.text) : console.text(*payload.text);
    } else {
        for (const auto &file : payload.files) {
            console.line(isTerminal ? printable(file.name) : file.name);
        }
    }
    return {};
}

// One byte more than is allowed tells that there is too much. Read without the library, whose
// buffer would keep a copy.
Result<std::string> readInput()
{
    std::string text(ClipboardPayload::kLargestText + 1, '\0');
    std::size_t size = 0;
    while (size < text.size()) {
        const ssize_t got = read(STDIN_FILENO, text.data() + size, text.size() - size);
        if (got < 0 && errno != EINTR) {
            Base::wipe(text);
            return std::unexpected(KestError::unavailable("Standard input cannot be read"));
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
    text.resize(size);
    return text;
}

Result<void> runAdd(const Session &session)
{
    KEST_TRY(std::string input, readInput());
    auto payload = KestCore::clipboardTextPayload(std::move(input));
    const Base::WipeAtEnd wiping{payload};
    KEST_CHECK(payload.validate());
    const auto change = [&](ClipboardHistory &history) -> Result<ClipboardListing> {
        KEST_TRY(const auto entry, history.add(payload, Base::wallClock()));
        return history.listing(entry.id);
    };
    KEST_TRY(auto line, withHistory(session, change));
    return print(session.console, {std::move(line)});
}

Result<void> runRemove(const Session &session, const std::string &id)
{
    const auto change = [&](ClipboardHistory &history) -> Result<ClipboardListing> {
        KEST_TRY(const auto entry, history.find(id));
        KEST_TRY(auto line, history.listing(entry.id));
        KEST_CHECK(history.remove(entry.id));
        return line;
    };
    KEST_TRY(auto line, withHistory(session, change));
    return print(session.console, {std::move(line)});
}

Result<void> runFavourite(const Session &session, const std::string &id)
{
    const auto change = [&](ClipboardHistory &history) -> Result<ClipboardListing> {
        KEST_TRY(const auto found, history.find(id));
        KEST_TRY(const auto entry, history.setFavourite(found.id, !found.favourite));
        return history.listing(entry.id);
    };
    KEST_TRY(auto line, withHistory(session, change));
    return print(session.console, {std::move(line)});
}

Result<void> runClear(const Session &session, bool isConfirmed)
{
    if (!isConfirmed && (!Console::isInteractive() ||
                         !Console::confirms("Remove everything but the favourites?"))) {
        return std::unexpected(
            KestError::invalidData("Confirm with --yes before clearing the clipboard history"));
    }
    const auto change = [](ClipboardHistory &history) -> Result<Listings> {
        KEST_CHECK(history.clear());
        return history.list();
    };
    KEST_TRY(const Listings left, withHistory(session, change));
    return print(session.console, left, kEmpty);
}

using OnEntry = Result<void> (*)(const Session &, const std::string &);

Result<void> runList(const Session &session)
{
    KEST_TRY(const Listings all,
             withHistory(session, [](ClipboardHistory &history) { return history.list(); }));
    return print(session.console, all, kEmpty);
}

Result<void> runSearch(const Session &session, const std::string &words)
{
    KEST_TRY(const Listings found, withHistory(session, [&](ClipboardHistory &history) {
                 return history.search(words);
             }));
    return print(session.console, found, "Nothing in the history has these words.");
}

Result<void> runShow(const Session &session, const std::string &id)
{
    const auto open = [&](ClipboardHistory &history) -> Result<ClipboardPayload> {
        KEST_TRY(const auto entry, history.find(id));
        return history.content(entry.id);
    };
    auto payload = withHistory(session, open);
    const Base::WipeAtEnd wiping{payload};
    return payload ? showContent(session.console, *payload)
                   : std::unexpected(std::move(payload).error());
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
