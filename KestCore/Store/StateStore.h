// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Base/FileLock.h"
#include "Base/Sqlite.h"
#include "KestCore/Models/Snapshot.h"
#include "KestCore/Store/Backup.h"
#include "KestCore/Store/StateEncoder.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace KestCore
{

// Records that change together.
struct RecordChanges {
    std::vector<LocalRecord> written{}; // new, or in the place of one with the same id
    std::vector<std::string> removed{}; // ids; one that is not there is no failure
};

// The only writer of the state database. Has no lock of its own: lives in a
// Serial<StateStore> or on one thread. Every mutation raises the state's revision by one and
// writes it in the same transaction; on any failure the file and the memory are as before.
class StateStore
{
public:
    using StateMutation = std::function<Result<void>(NativeState &)>;
    using RecordMutation = std::function<Result<void>(LocalRecord &)>;

    static constexpr std::chrono::milliseconds kLockPatience{5000};

    // Opens, creates or migrates the file and becomes its owner. Waits `patience` for another
    // owner, then fails with unavailable, saying who that is.
    [[nodiscard]] static Result<StateStore>
    open(const std::filesystem::path &file, std::chrono::milliseconds patience = kLockPatience);

    // Keeps this alive until the file and its lock are given up, such as the connection over
    // which another owner has lent them.
    void holdUntilClosed(std::shared_ptr<const void> thing) { m_held = std::move(thing); }

    // From now on snapshots lack the clipboard's records, for a program that stays: their
    // images may take more memory than all the rest of it.
    void leaveClipboardOnDisk();

    const NativeState &state() const { return m_state; }
    const CompanionState &companion() const { return m_companion; }

    // Everything, all records included, unless the clipboard's are left on the disk. One row
    // that does not decode fails the whole call.
    [[nodiscard]] Result<Snapshot> snapshot();

    [[nodiscard]] Result<Snapshot> update(const StateMutation &mutation);
    // The same change for a caller that needs only `state()`: reads no records at all.
    [[nodiscard]] Result<void> change(const StateMutation &mutation);

    // Takes over the document of an older product, once.
    [[nodiscard]] Result<Snapshot> migrateLegacy(std::string_view document);
    [[nodiscard]] Result<Snapshot> saveCompanion(CompanionState companion);

    [[nodiscard]] Result<Snapshot> upsertRecord(const LocalRecord &record);
    [[nodiscard]] Result<Snapshot> deleteRecord(std::string_view id);
    // Fails with "This item was removed." for an unknown id and "Cannot change an item's
    // identity." when the mutation changes it.
    [[nodiscard]] Result<Snapshot> updateRecord(std::string_view id,
                                                const RecordMutation &mutation);

    // All of it in one step, for a caller that needs no snapshot: reads no records.
    [[nodiscard]] Result<void> changeRecords(const RecordChanges &changes);

    // Some of the records in insertion order, without reading the others: the rows of a
    // clipboard history can be large.
    [[nodiscard]] Result<std::vector<LocalRecord>> recordsOfKind(std::string_view kind);
    // `prefix` is ASCII and not empty.
    [[nodiscard]] Result<std::vector<LocalRecord>> recordsWithIdPrefix(std::string_view prefix);
    [[nodiscard]] Result<std::optional<LocalRecord>> record(std::string_view id);
    // Only the ids, in insertion order: no body is read.
    [[nodiscard]] Result<std::vector<std::string>> recordIdsOfKind(std::string_view kind);

    // Forgets finished sessions and the records of use, clipboard and completion.
    [[nodiscard]] Result<Snapshot> clearHistory();
    // Forgets the devotional data, the companion and every record; keeps the settings, the
    // enabled tools, their order and the pin.
    [[nodiscard]] Result<Snapshot> resetAll();

    // The bytes of one backup, piece by piece; returns how many records it holds. A row that
    // does not decode fails the whole call, whatever the sink has taken by then.
    [[nodiscard]] Result<std::int64_t> exportBackup(Base::Instant now, const BackupSink &sink);
    // How many records an import takes away, by kind: those that travel in backups, those of
    // kinds that this build does not know, and what lies in the bin.
    [[nodiscard]] Result<std::map<std::string, std::int64_t>> countsReplacedByImport();
    // Replaces the state, the companion and all records but those that are bound to this
    // machine by the backup's, in one step; fails with storage when a record of its has the id
    // of one that stays. `progress` is told how many records are written. Reads no records.
    using RestoreProgress = std::function<void(std::int64_t)>;
    [[nodiscard]] Result<void>
    restore(const Backup &backup, const RestoreProgress &progress = [](std::int64_t) {});
    // Reads, proves and restores. Fails as Backup::read and restore do.
    [[nodiscard]] Result<Snapshot> importBackup(std::string bytes);

    // SQLite's own findings about the file, "ok" when it is sound.
    [[nodiscard]] Result<std::string> checkIntegrity();

private:
    using Write = std::function<Result<void>()>;
    using RecordList = std::vector<RecordRef>;
    using RecordEdit = std::function<void(RecordList &)>;

    StateStore(Base::FileLock lock, Base::Database database);

    [[nodiscard]] Result<void> load(const std::filesystem::path &file);
    [[nodiscard]] Result<void> refuseNewerFile();
    [[nodiscard]] Result<void> loadCompanion();

    enum class Records : std::uint8_t { asTheyAre, readForSnapshot };
    // Writes `next` with what else belongs to the change, and only then replaces the memory.
    [[nodiscard]] Result<void> commit(NativeState next, const Write &alsoWrite,
                                      const RecordEdit &edit, Records records);
    [[nodiscard]] Result<void> replaceBy(const Backup &backup, const RestoreProgress &progress,
                                         Records records);
    [[nodiscard]] Result<Snapshot> commitForSnapshot(NativeState next, const Write &alsoWrite,
                                                     const RecordEdit &edit);
    [[nodiscard]] Result<bool> hasFreshRecords();
    [[nodiscard]] Result<void> readRecords();
    [[nodiscard]] Result<std::vector<LocalRecord>>
    selectRecords(std::string_view sql, Base::Database::Parameters parameters);
    Snapshot currentSnapshot() const;

    std::shared_ptr<const void> m_held; // before the lock, so that it goes after it
    Base::FileLock m_lock;              // before the database, so that it is given up after it
    Base::Database m_database;
    NativeState m_state{};
    CompanionState m_companion{};
    StateEncoder m_encoder;

    bool m_leavesClipboard = false;

    // The decoded rows, while no other connection has written since they were read.
    Base::SharedList<RecordRef> m_records;
    std::string m_recordsVersion; // SQLite's data version then; empty: not read yet
};

} // namespace KestCore
