// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/RecordIds.h"
#include "KestCore/Tools/Notes.h"
#include "cli/ItemAnswers.h"
#include "cli/ListCommands.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <sys/stat.h>
#include <unistd.h>

// note: the notes, and the scratchpad.
namespace Cli
{

namespace
{

using KestCore::LocalRecord;
using KestCore::NoteChange;
using KestCore::RecordList;

constexpr const char *kWhenEmpty = "No notes yet.";

struct Arguments {
    NoteChange change{};
    std::string id{};
    std::vector<std::string> words{};
    std::optional<std::string> appended{};
    bool replaces{};
    bool clears{};
};

// Standard input may take its time; it is read before the store is opened.
constexpr const char *kInput = "-";

// Whether something was put in the place of the terminal that may hold a text. A device, such
// as /dev/null, or a socket is only where the program happened to be started.
bool inputIsPipeOrFile()
{
    struct stat input{};
    return fstat(STDIN_FILENO, &input) == 0 &&
           (S_ISFIFO(input.st_mode) || S_ISREG(input.st_mode));
}

// Nothing at all comes from a command that failed, and must not empty what is kept.
Result<std::string> requireInput(std::string_view wayToEmpty)
{
    KEST_TRY(std::string text, textOrInput(kInput));
    if (text.empty()) {
        return std::unexpected(
            KestError::invalidData(fmt::format("Standard input is empty; {}", wayToEmpty)));
    }
    return text;
}

Result<void> readInputFor(NoteChange &given)
{
    if (!given.text && given.title == kInput) {
        given.title.reset();
    }
    if (!given.text && (!given.title || inputIsPipeOrFile())) {
        given.text = kInput;
    }
    if (given.text) {
        KEST_TRY(given.text, textOrInput(*given.text));
    }
    return {};
}

Result<void> runAdd(const ListTool &tool, NoteChange given)
{
    KEST_CHECK(readInputFor(given));
    return runOnList(tool, [&](RecordList &list) -> Result<std::vector<LocalRecord>> {
        KEST_TRY(auto note, KestCore::makeNote(given));
        KEST_TRY(note, list.add(std::move(note), KestCore::ListEnd::front));
        return std::vector{std::move(note)};
    });
}

Result<void> runEdit(const ListTool &tool, const std::string &id, NoteChange change)
{
    if (change.text == kInput) {
        KEST_TRY(change.text, requireInput("--text \"\" empties the note"));
    }
    return runOnList(tool, [&](RecordList &list) -> Result<std::vector<LocalRecord>> {
        KEST_TRY(auto note, list.edit(id, [&](LocalRecord &record) {
            return KestCore::changeNote(record, change);
        }));
        return std::vector{std::move(note)};
    });
}

Result<void> runSearch(const Session &session, const std::vector<std::string> &words)
{
    KEST_TRY(auto store, session.openStore());
    KEST_TRY(const auto notes,
             RecordList(store, KestCore::kNoteKind, Base::wallClock()).items());
    const std::string query = fmt::format("{}", fmt::join(words, " "));
    return printHits(session.console, KestCore::searchNotes(notes, query),
                     KestCore::idsOf(notes));
}

Result<void> runShow(const Session &session, const std::string &id)
{
    KEST_TRY(auto store, session.openStore());
    KEST_TRY(const auto record,
             RecordList(store, KestCore::kNoteKind, Base::wallClock()).find(id));
    if (session.console.isJson) {
        return printItems(session.console, {record}, {&record.id, 1}, kWhenEmpty);
    }
    KEST_TRY(const auto note,
             Base::json::decode<KestCore::Note>(std::string_view{record.body}));
    printText(session.console, note.text);
    return {};
}

Result<void> runScratchpad(const Session &session, const Arguments &args)
{
    const bool replaces = args.replaces || args.clears;
    const bool writes = replaces || args.appended;
    std::string text;
    if (args.replaces) {
        KEST_TRY(text, requireInput("--clear empties the scratchpad"));
    } else if (args.appended) {
        KEST_TRY(text, textOrInput(*args.appended));
    }
    KEST_TRY(auto store, session.openStore());
    if (args.appended) {
        KEST_CHECK(KestCore::appendToScratchpad(store, text, Base::wallClock()));
    } else if (replaces) {
        KEST_CHECK(KestCore::replaceScratchpad(store, text, Base::wallClock()));
    }
    KEST_TRY(const auto page, KestCore::readScratchpad(store));
    PageAnswer answer{.text = page.text};
    if (page.updated) {
        answer.updated = instantText(*page.updated);
    }
    return session.console.answer(answer, [&] {
        if (!writes) {
            printText(session.console, page.text);
        }
    });
}

void addAdd(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *add = tool.command->add_subcommand("add", "Adds a note, at the front");
    add->add_option("TITLE", args->change.title,
                    "Its title; the first line of its text where there is none, or -");
    CLI::Option *text =
        add->add_option("TEXT", args->change.text,
                        "Its text; else standard input, where that is a pipe or a file");
    add->add_option("--text", args->change.text, "The same, or - for standard input")
        ->excludes(text);
    add->callback([=] { tool.session->command = [=] { return runAdd(tool, args->change); }; });
}

void addEdit(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *edit = tool.command->add_subcommand("edit", "Changes a note");
    edit->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    edit->add_option("--title", args->change.title, "Its new title; \"\" for the first line");
    edit->add_option("--text", args->change.text, "Its new text, or - for standard input");
    edit->callback([=] {
        if (!args->change.title && !args->change.text) {
            throw CLI::RequiredError("--title or --text");
        }
        tool.session->command = [=] { return runEdit(tool, args->id, args->change); };
    });
}

void addScratchpad(const ListTool &tool, const std::shared_ptr<Arguments> &args)
{
    CLI::App *page = tool.command->add_subcommand("scratchpad", "Prints the scratchpad");
    CLI::Option *append = page->add_option("--append", args->appended,
                                           "Add a line to it, or - for standard input");
    CLI::Option *replace =
        page->add_flag("--replace", args->replaces, "Put standard input in its place")
            ->excludes(append);
    page->add_flag("--clear", args->clears, "Empty it")->excludes(append)->excludes(replace);
    page->callback(
        [=] { tool.session->command = [=] { return runScratchpad(*tool.session, *args); }; });
}

} // namespace

void addNoteCommands(CLI::App &program, Session &session)
{
    const auto args = std::make_shared<Arguments>();
    const ListTool tool{.command = program.add_subcommand("note", "Keeps notes"),
                        .session = &session,
                        .kind = KestCore::kNoteKind,
                        .whenEmpty = kWhenEmpty};
    tool.command->require_subcommand(1);
    addBasicCommands(tool);
    CLI::App *show = tool.command->add_subcommand("show", "Prints a note's text");
    show->add_option("ID", args->id, "As list shows it, or the beginning of it")->required();
    show->callback(
        [=] { tool.session->command = [=] { return runShow(*tool.session, args->id); }; });
    addAdd(tool, args);
    addEdit(tool, args);
    addPinCommands(tool);
    addRestoreCommand(tool);
    CLI::App *search = tool.command->add_subcommand("search", "Finds notes by their words");
    search->add_option("TEXT", args->words, "Words, without regard to case and marks")
        ->required();
    search->callback(
        [=] { tool.session->command = [=] { return runSearch(*tool.session, args->words); }; });
    addScratchpad(tool, args);
}

} // namespace Cli
