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

// One file that carries everything to another computer.
namespace Cli
{

namespace
{

using KestCore::Backup;
using KestCore::LocalRecord;
using KestCore::StateStore;

constexpr std::string_view kPipe = "-";
constexpr std::size_t kPieceSize = std::size_t{256} * 1024;

struct BackupChoice {
    std::string file{};
    bool isYes = false;
};

// One line of standard error that is written over and over while a large file is worked on.
class ProgressLine
{
public:
    static constexpr std::int64_t kStep = 1'000;

    ProgressLine(std::string_view verb, std::int64_t total)
        : m_verb(verb), m_total(total),
          m_isShown(isatty(STDERR_FILENO) != 0 && total > 2 * kStep)
    {
    }
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    ~ProgressLine()
    {
        if (m_isShown) {
            std::fputs("\r\x1b[K", stderr);
        }
    }

    void show(std::int64_t done) const
    {
        if (m_isShown && done % kStep == 0) {
            std::fprintf(stderr, "\r%s record %lld of %lld\x1b[K", m_verb.c_str(),
                         static_cast<long long>(done), static_cast<long long>(m_total));
            std::fflush(stderr);
        }
    }

private:
    std::string m_verb;
    std::int64_t m_total;
    bool m_isShown;
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
        return m_gathered.size() < kPieceSize ? Result<void>{} : flush();
    }
    Result<void> flush()
    {
        KEST_CHECK(m_sink(m_gathered));
        m_gathered.clear();
        return {};
    }
    std::size_t total() const { return m_total; }

private:
    KestCore::BackupSink m_sink;
    std::string m_gathered;
    std::size_t m_total = 0;
};

Result<std::int64_t> exportTo(StateStore &store, Gatherer &gatherer)
{
    KEST_TRY(const std::int64_t count,
             store.exportBackup(Base::wallClock(),
                                [&](std::string_view piece) { return gatherer.take(piece); }));
    KEST_CHECK(gatherer.flush());
    return count;
}

// It is written nonetheless: whoever has so much may still want it in one place.
void warnAboutSize(std::size_t size)
{
    if (size > KestCore::kLargestBackup) {
        std::fputs("kest: this backup exceeds the 50 MB that an import accepts\n", stderr);
    }
}

Result<void> answerExport(const Session &session, const BackupAnswer &answer,
                          const std::filesystem::path &target)
{
    return session.console.answer(answer, [&] {
        session.console.line(fmt::format("{} records and the settings are in {}",
                                         answer.records, printable(target.string())));
    });
}

Result<void> exportToFile(const Session &session, StateStore &store,
                          std::filesystem::path target)
{
    std::error_code error;
    if (std::filesystem::is_directory(target, error)) {
        target /= KestCore::kBackupName;
    }
    KEST_TRY(auto file, Base::ReplacingFile::create(target));
    Gatherer gatherer{[&](std::string_view bytes) { return file.write(bytes); }};
    KEST_TRY(const std::int64_t count, exportTo(store, gatherer));
    KEST_CHECK(file.commit());
    warnAboutSize(gatherer.total());
    return answerExport(session, {count, store.state().revision}, target);
}

Result<void> exportBackup(const Session &session, const BackupChoice &choice)
{
    KEST_TRY(StateStore store, session.openStore());
    if (choice.file != kPipe) {
        return exportToFile(session, store, choice.file);
    }
    Gatherer gatherer{[&](std::string_view bytes) -> Result<void> {
        session.console.text(bytes);
        return Console::flush();
    }};
    KEST_TRY([[maybe_unused]] const std::int64_t count, exportTo(store, gatherer));
    warnAboutSize(gatherer.total());
    return {};
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
    KEST_TRY(const auto here, store.portableCounts());
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
Result<bool> mayReplace(const Session &session, StateStore &store, const Backup &backup,
                        const BackupChoice &choice)
{
    if (choice.isYes) {
        return true;
    }
    if (!session.console.isJson) {
        KEST_CHECK(printSummary(session, store, backup));
    }
    if (choice.file == kPipe || session.console.isJson || !Console::isInteractive()) {
        return std::unexpected(KestError::unavailable(fmt::format(
            "{} Say --yes to do it; nothing was changed.", KestCore::kReplaceText)));
    }
    KEST_CHECK(Console::flush());
    return Console::confirms(
        fmt::format("{} {}", KestCore::kReplaceTitle, KestCore::kReplaceText));
}

Result<void> importBackup(const Session &session, const BackupChoice &choice)
{
    const std::filesystem::path source{choice.file == kPipe ? "/dev/stdin" : choice.file};
    KEST_TRY(std::string bytes, Base::readFile(source, KestCore::kLargestBackup));
    KEST_TRY(const Backup backup, Backup::read(std::move(bytes)));
    KEST_TRY(StateStore store, session.openStore());
    KEST_TRY(const bool isWanted, mayReplace(session, store, backup, choice));
    if (!isWanted) {
        session.console.line("Nothing was changed.");
        return {};
    }
    const std::int64_t total = sum(backup.recordCounts());
    {
        const ProgressLine progress{"Importing", total};
        KEST_CHECK(store.restore(backup, [&](std::int64_t done) { progress.show(done); }));
    }
    const BackupAnswer answer{total, store.state().revision};
    return session.console.answer(answer, [&] {
        session.console.line(fmt::format("{} records and the settings were imported.", total));
    });
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
