// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/Backup.h"
#include "KestCore/Store/CompanionMigration.h"
#include "KestCore/Store/StateStore.h"

// How the store gives its data away and takes it back; the rest of it is in StateStore.cpp.
namespace KestCore
{

namespace
{

// Rows of other kinds can be large, and no byte of them belongs in a backup.
constexpr std::string_view kReadForBackup =
    "SELECT body FROM records WHERE kind NOT IN ('shelf','clipboard','usage') ORDER BY rowid";
constexpr std::string_view kReadReplacedKinds =
    "SELECT kind FROM records WHERE kind NOT IN ('shelf','clipboard','usage')";
constexpr std::string_view kInsertRecord =
    "INSERT INTO records(id,kind,body) VALUES(CAST(? AS TEXT),CAST(? AS TEXT),?)";
constexpr std::string_view kClearReplaced =
    "DELETE FROM records WHERE kind NOT IN ('shelf','clipboard','usage')";

} // namespace

Result<std::int64_t> StateStore::exportBackup(Base::Instant now, const BackupSink &sink)
{
    KEST_TRY(const BackupFrame frame, backupFrame(m_companion, m_state, now));
    KEST_CHECK(sink(frame.head));
    std::int64_t count = 0;
    KEST_CHECK(m_database.forEachRow(kReadForBackup, {}, [&](const auto &row) -> Result<void> {
        KEST_TRY(const LocalRecord record, decodeLocalRecord(row));
        if (!isPortable(record.kind)) {
            return {};
        }
        if (count++ > 0) {
            KEST_CHECK(sink(","));
        }
        return sink(row.view());
    }));
    KEST_CHECK(sink(frame.tail));
    return count;
}

Result<std::map<std::string, std::int64_t>> StateStore::countsReplacedByImport()
{
    std::map<std::string, std::int64_t> counts;
    KEST_CHECK(
        m_database.forEachRow(kReadReplacedKinds, {}, [&](const auto &row) -> Result<void> {
            ++counts[std::string{row.view()}];
            return {};
        }));
    return counts;
}

Result<void> StateStore::replaceBy(const Backup &backup, const RestoreProgress &progress,
                                   Records records)
{
    KEST_TRY(const std::string companion, json::encode(backup.companion()));
    // What was read belongs to the rows that go.
    m_recordsVersion.clear();
    const auto write = [&]() -> Result<void> {
        KEST_CHECK(m_database.run(kClearReplaced));
        std::int64_t written = 0;
        KEST_CHECK(backup.forEachRecord([&](const LocalRecord &record) -> Result<void> {
            KEST_TRY(const std::string body, json::encode(record));
            KEST_CHECK(m_database.run(kInsertRecord, {record.id, record.kind, body}));
            progress(++written);
            return {};
        }));
        return m_database.run(kWriteCompanion, {companion});
    };
    KEST_CHECK(commit(backup.state(), write, {}, records));
    m_companion = backup.companion();
    return {};
}

Result<void> StateStore::restore(const Backup &backup, const RestoreProgress &progress)
{
    return replaceBy(backup, progress, Records::asTheyAre);
}

Result<Snapshot> StateStore::importBackup(std::string bytes)
{
    KEST_TRY(const Backup backup, Backup::read(std::move(bytes)));
    KEST_CHECK(replaceBy(backup, [](std::int64_t) {}, Records::readForSnapshot));
    return currentSnapshot();
}

} // namespace KestCore
