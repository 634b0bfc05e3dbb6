// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "Base/File.h"
#include "KestCore/Store/Backup.h"
#include "cli/Answers.h"
#include "cli/Session.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <unistd.h>

#include <cstdio>
#include <memory>
#include <numeric>
#include <optional>
#include <utility>

// One file that carries everything to another computer.
namespace Cli
{

namespace
{

using KestCore::Backup;
using KestCore::StateStore;

constexpr std::string_view kPipe = "-";
constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

struct BackupChoice {
    std::string file{};
    bool isYes = false;
};

// One line of standard error that is written over and over while a large backup is worked on.
class ProgressLine
{
public:
    explicit ProgressLine(std::string_view verb)
        : m_verb(verb), m_isTerminal(isatty(STDERR_FILENO) != 0)
    {
    }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    ~ProgressLine() { clear(); }

    // Takes the line away, before anything else is said.
    void clear()
    {
        if (std::exchange(m_shown, 0) > 0) {
            std::fputs("\r\x1b[K", stderr);
        }
    }

    // Worth a line from the fourth megabyte on.
    void showBytes(std::size_t done)
    {
        show(static_cast<std::int64_t>(done / 1'000'000), 4, "MB");
    }
    void showRecords(std::int64_t done) { show(done / 1'000, 2, "thousand records"); }

private:
    void show(std::int64_t done, std::int64_t least, const char *unit)
    {
        if (m_isTerminal && done >= least && done != m_shown) {
            m_shown = done;
            std::fprintf(stderr, "\r%s: %lld %s\x1b[K", m_verb.c_str(),
                         static_cast<long long>(done), unit);
            std::fflush(stderr);
        }
    }

    std::string m_verb;
    bool m_isTerminal;
    std::int64_t m_shown = 0;
};

// Gathers small pieces, as most records are much smaller than a write is dear.
class Gatherer
{
public:
    explicit Gatherer(KestCore::BackupSink sink) : m_sink(std::move(sink)) {}

    Result<void> take(std::string_view piece)
    {
        m_total += piece.size();
        m_gathered += piece;
        m_progress.showBytes(m_total);
        return m_gathered.size() < kPieceSize ? Result<void>{} : flush();
    }
    // Hands over the rest.
    Result<void> finish()
    {
        m_progress.clear();
        return flush();
    }
    std::size_t total() const { return m_total; }

private:
    Result<void> flush()
    {
        KEST_CHECK(m_sink(m_gathered));
        m_gathered.clear();
        return {};
    }

    KestCore::BackupSink m_sink;
    std::string m_gathered;
    std::size_t m_total = 0;
    ProgressLine m_progress{"Exporting"};
};

Result<std::int64_t> exportTo(StateStore &store, Gatherer &gatherer)
{
    KEST_TRY(const std::int64_t count,
             store.exportBackup(Base::wallClock(),
                                [&](std::string_view piece) { return gatherer.take(piece); }));
    KEST_CHECK(gatherer.finish());
    return count;
}

// It is written nonetheless: whoever has so much may still want it in one place.
void warnAboutLimits(std::size_t size, std::int64_t records)
{
    if (size > KestCore::kLargestBackup) {
        std::fputs("kest: this backup exceeds the 50 MB that an import accepts\n", stderr);
    }
    if (records > KestCore::kMostBackupRecords) {
        std::fputs("kest: this backup exceeds the 100,000 records that an import accepts\n",
                   stderr);
    }
}

std::string recordsText(std::int64_t count)
{
    return fmt::format("{} record{}", count, count == 1 ? "" : "s");
}

Result<void> answerExport(const Session &session, const BackupAnswer &answer,
                          const std::filesystem::path &target)
{
    return session.console.answer(answer, [&] {
        session.console.line(fmt::format("{} and the settings are in {}",
                                         recordsText(answer.records),
                                         printable(target.string())));
    });
}

Result<void> exportToFile(const Session &session, std::filesystem::path target)
{
    std::error_code error;
    if (std::filesystem::is_directory(target, error)) {
        target /= KestCore::kBackupName;
    }
    KEST_TRY(auto file, Base::ReplacingFile::create(target));
    KEST_TRY(StateStore store, session.openStore());
    Gatherer gatherer{[&](std::string_view bytes) { return file.write(bytes); }};
    KEST_TRY(const std::int64_t count, exportTo(store, gatherer));
    KEST_CHECK(file.commit());
    warnAboutLimits(gatherer.total(), count);
    return answerExport(session, {count, store.state().revision}, target);
}

// Whoever reads the pipe may take his time, and the store must not be held for so long.
Result<void> exportToPipe(const Session &session)
{
    std::string whole;
    const auto spool = [&]() -> Result<std::int64_t> {
        KEST_TRY(StateStore store, session.openStore());
        return store.exportBackup(Base::wallClock(),
                                  [&](std::string_view piece) -> Result<void> {
                                      whole += piece;
                                      return {};
                                  });
    };
    KEST_TRY(const std::int64_t count, spool());
    session.console.text(whole);
    warnAboutLimits(whole.size(), count);
    return Console::flush();
}

Result<void> exportBackup(const Session &session, const BackupChoice &choice)
{
    return choice.file == kPipe ? exportToPipe(session) : exportToFile(session, choice.file);
}

std::int64_t sum(const std::map<std::string, std::int64_t> &counts)
{
    return std::accumulate(
        counts.begin(), counts.end(), std::int64_t{0},
        [](std::int64_t total, const auto &entry) { return total + entry.second; });
}

// What is there now beside what the backup would put in its place.
Result<void> printSummary(const Session &session, StateStore &store, const Backup &backup)
{
    KEST_TRY(const auto here, store.countsReplacedByImport());
    const auto number = [](std::size_t count) { return std::to_string(count); };
    std::vector<std::vector<std::string>> rows{{"", "here", "in the backup"}};
    rows.push_back({"finished sessions", number(store.state().devotional.records.size()),
                    number(backup.state().devotional.records.size())});
    rows.push_back({"settings", number(store.state().settings.size()),
                    number(backup.state().settings.size())});
    rows.push_back({"workspaces", number(store.companion().workspaces.size()),
                    number(backup.companion().workspaces.size())});
    auto kinds = here;
    kinds.insert(backup.recordCounts().begin(), backup.recordCounts().end());
    const auto countIn = [](const auto &counts, const std::string &kind) {
        const auto found = counts.find(kind);
        return std::to_string(found == counts.end() ? 0 : found->second);
    };
    for (const auto &[kind, ignored] : kinds) {
        rows.push_back({printable(kind) + " records", countIn(here, kind),
                        countIn(backup.recordCounts(), kind)});
    }
    session.console.line(
        fmt::format("Backup of {}", localTime(Base::milliseconds1970(backup.exportedAt()))));
    session.console.table(rows);
    return {};
}

// Whether the user wants it. Without a terminal to ask on, only --yes says so.
Result<bool> confirmReplacing(const Session &session, bool fromPipe)
{
    if (fromPipe || session.console.isJson || !Console::isInteractive()) {
        return std::unexpected(KestError::unavailable(fmt::format(
            "{} Say --yes to do it; nothing was changed.", KestCore::kReplaceText)));
    }
    KEST_CHECK(Console::flush());
    return Console::confirms(
        fmt::format("{} {}", KestCore::kReplaceTitle, KestCore::kReplaceText));
}

// Shows what is here and asks. The store is given back while the question stands, so the
// answer holds only for what was shown: its revision, if the answer is yes.
Result<std::optional<std::int64_t>> askToReplace(const Session &session, const Backup &backup,
                                                 bool fromPipe)
{
    const auto shownRevision = [&]() -> Result<std::int64_t> {
        KEST_TRY(StateStore store, session.openStore());
        if (!session.console.isJson) {
            KEST_CHECK(printSummary(session, store, backup));
        }
        return store.state().revision;
    };
    KEST_TRY(const std::int64_t revision, shownRevision());
    KEST_TRY(const bool isWanted, confirmReplacing(session, fromPipe));
    return isWanted ? std::optional{revision} : std::nullopt;
}

Result<void> replaceBy(const Session &session, const Backup &backup,
                       std::optional<std::int64_t> shownRevision)
{
    KEST_TRY(StateStore store, session.openStore());
    if (shownRevision && store.state().revision != *shownRevision) {
        return std::unexpected(KestError::invalidData(
            "The data has changed since the question; nothing was imported"));
    }
    {
        ProgressLine progress{"Importing"};
        KEST_CHECK(
            store.restore(backup, [&](std::int64_t done) { progress.showRecords(done); }));
    }
    const BackupAnswer answer{sum(backup.recordCounts()), store.state().revision};
    return session.console.answer(answer, [&] {
        session.console.line(
            fmt::format("{} and the settings were imported.", recordsText(answer.records)));
    });
}

Result<Backup> readBackup(const std::string &file)
{
    KEST_TRY(std::string bytes, file == kPipe
                                    ? Base::readDescriptor(STDIN_FILENO, "standard input",
                                                           KestCore::kLargestBackup)
                                    : Base::readFile(file, KestCore::kLargestBackup));
    ProgressLine progress{"Checking"};
    progress.showBytes(bytes.size());
    return Backup::read(std::move(bytes));
}

Result<void> importBackup(const Session &session, const BackupChoice &choice)
{
    KEST_TRY(const Backup backup, readBackup(choice.file));
    if (choice.isYes) {
        return replaceBy(session, backup, std::nullopt);
    }
    KEST_TRY(const auto revision, askToReplace(session, backup, choice.file == kPipe));
    if (!revision) {
        session.console.line("Nothing was changed.");
        return {};
    }
    return replaceBy(session, backup, revision);
}

using Command = Result<void> (*)(const Session &, const BackupChoice &);

void addCommand(CLI::App &backup, Session &session, const char *name, const char *help,
                const std::shared_ptr<BackupChoice> &choice, Command run)
{
    CLI::App *command = backup.add_subcommand(name, help);
    command->add_option("FILE", choice->file, "The backup file, or - for a pipe")->required();
    command->callback(
        [=, &session] { session.command = [=, &session] { return run(session, *choice); }; });
}

} // namespace

void addBackupCommands(CLI::App &program, Session &session)
{
    CLI::App *backup = program.add_subcommand("backup", "Carries the data in one file");
    backup->require_subcommand(1);
    const auto choice = std::make_shared<BackupChoice>();
    addCommand(*backup, session, "export", "Writes the portable data to a file", choice,
               exportBackup);
    addCommand(*backup, session, "import", "Replaces the portable data by a file's", choice,
               importBackup);
    backup->get_subcommand("import")->add_flag("--yes", choice->isYes, "Do not ask");
}

} // namespace Cli
