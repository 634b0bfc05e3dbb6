// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Models/UtilityPayloads.h"
#include "KestCore/Store/Backup.h"
#include "KestCore/Store/StateStore.h"
#include "bench/Bench.h"
#include "bench/RawDatabase.h"

#include <fmt/format.h>

#include <fstream>

namespace Bench
{

namespace
{

using KestCore::StateStore;

// Notes of ten kilobytes each: a diary of many years, with its quotes and line breaks.
void addNotes(StateStore &store, std::size_t count)
{
    std::string text;
    while (text.size() < 9'500) {
        text += "In the morning, before the sun was up, we walked along the river.\n"
                "It was quiet there, and she said: \"Let us come back tomorrow.\"\n"
                "So we did, the day after and every day of that week, until it rained.\n";
    }
    KestCore::RecordChanges changes;
    for (std::size_t n = 0; n < count; ++n) {
        changes.written.push_back(
            {.id = fmt::format("note-{}", n),
             .kind = "note",
             .title = fmt::format("Day {}", n),
             .body = must(Base::json::encode(KestCore::Note{.text = text})),
             .updated = 1'700'000'000'000.0});
    }
    must(store.changeRecords(changes));
}

Row exportRow()
{
    const auto file = freshFolder("export") / "kest.sqlite";
    StateStore store = must(StateStore::open(file));
    addNotes(store, 3'950);
    RawDatabase raw{file};
    std::size_t bytes = 0;
    const Pair seconds = measureByTurns(
        15,
        [&] {
            bytes = 0;
            must(store.exportBackup({}, [&](std::string_view piece) -> Base::Result<void> {
                bytes += piece.size();
                return {};
            }));
        },
        [&] { raw.readAll(); });
    return ratioRow(
        fmt::format("export of a {} MB store against reading its rows", bytes / 1'000'000),
        seconds, 2.5);
}

// A backup of exactly the largest size, padded with blanks behind its last record.
std::filesystem::path writeLargestBackup(const std::filesystem::path &folder)
{
    StateStore store = must(StateStore::open(folder / "source" / "kest.sqlite"));
    addNotes(store, 4'800);
    std::string bytes;
    must(store.exportBackup({}, [&](std::string_view piece) -> Base::Result<void> {
        bytes += piece;
        return {};
    }));
    if (bytes.size() > KestCore::kLargestBackup) {
        giveUp("the backup to import is too large");
    }
    bytes.insert(bytes.size() - 2, KestCore::kLargestBackup - bytes.size(), ' ');
    std::ofstream{folder / "backup.json"} << bytes;
    return folder / "backup.json";
}

} // namespace

// The floor of an import is SQLite that commits as many bytes in one row.
std::vector<Row> backupSuite()
{
    const auto folder = freshFolder("import");
    const std::vector<std::string> import{KEST_PROGRAM,
                                          "--data-dir",
                                          folder.string(),
                                          "backup",
                                          "import",
                                          "--yes",
                                          writeLargestBackup(folder).string()};
    RawDatabase raw{folder / "raw.sqlite"};
    const std::string blob(KestCore::kLargestBackup, 'x');
    const Pair seconds =
        measureByTurns(5, [&] { runProgram(import); }, [&] { raw.commitState(blob); });
    return {exportRow(), durationRow("import of a 50 MB backup by kest", seconds, 3.0),
            memoryRow("memory of that import", peakMemory(import),
                      static_cast<double>(KestCore::kLargestBackup), 100e6)};
}

} // namespace Bench
