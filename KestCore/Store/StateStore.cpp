// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"

#include "Base/Fault.h"
#include "KestCore/Registry/ToolRegistry.h"
#include "KestCore/Store/CompanionMigration.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace KestCore
{

namespace fs = std::filesystem;

namespace
{

constexpr const char *kSchema =
    "PRAGMA journal_mode=WAL; PRAGMA synchronous=FULL; PRAGMA busy_timeout=5000; CREATE TABLE "
    "IF NOT EXISTS state(id INTEGER PRIMARY KEY CHECK(id=1), body BLOB NOT NULL); CREATE TABLE "
    "IF NOT EXISTS records(id TEXT PRIMARY KEY, kind TEXT NOT NULL, body BLOB NOT NULL); CREATE "
    "INDEX IF NOT EXISTS records_kind ON records(kind);";
constexpr std::string_view kReadCompanion = "SELECT body FROM companion WHERE id=1";
constexpr std::string_view kReadState = "SELECT body FROM state WHERE id=1";
constexpr std::string_view kProbeState =
    "SELECT name FROM sqlite_master WHERE type='table' AND name='state'";
constexpr std::string_view kReadRecords = "SELECT body FROM records ORDER BY rowid";
constexpr std::string_view kReadAllButClipboard =
    "SELECT body FROM records WHERE kind<>'clipboard' ORDER BY rowid";
constexpr std::string_view kWriteState =
    "INSERT INTO state(id,body) VALUES(1,?) ON CONFLICT(id) DO UPDATE SET body=excluded.body";
constexpr std::string_view kClearHistory =
    "DELETE FROM records WHERE kind IN ('usage','clipboard','completion')";
constexpr std::string_view kClearRecords = "DELETE FROM records";

constexpr std::string_view kClipboardKind = "clipboard";
constexpr std::array<std::string_view, 3> kHistoryKinds{"usage", "clipboard", "completion"};
constexpr std::string_view kSchemaVersion = "1";

std::int64_t nextRevision(const NativeState &state)
{
    if (state.revision == std::numeric_limits<std::int64_t>::max()) {
        Base::fatalFault("KestCore/Store", "the revision has no number after it");
    }
    return state.revision + 1;
}

Result<std::optional<NativeState>> readState(Base::Database &database)
{
    std::optional<NativeState> state;
    KEST_TRY(const auto tables, database.query(kProbeState));
    if (tables.empty()) {
        return state;
    }
    KEST_CHECK(database.forEachRow(kReadState, {}, [&](const auto &row) -> Result<void> {
        KEST_TRY(state, decodeNativeState(row));
        return {};
    }));
    return state;
}

Result<void> writeNothingElse() { return {}; }

} // namespace

StateStore::StateStore(Base::FileLock lock, Base::Database database)
    : m_lock(std::move(lock)), m_database(std::move(database))
{
}

Result<StateStore> StateStore::open(const fs::path &file, std::chrono::milliseconds patience)
{
    std::error_code error;
    const fs::path target = fs::absolute(file, error);
    KEST_CHECK(Base::makePrivateDirectory(target.parent_path()));
    KEST_TRY(auto lock, Base::FileLock::take(fs::path{target}.replace_extension("lock"),
                                             "Velvetnook's data", patience));
    Base::makePrivateFile(target);
    KEST_TRY(auto database, Base::Database::open(target, "Cannot open local storage"));
    StateStore store{std::move(lock), std::move(database)};
    KEST_CHECK(store.load(target));
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write, error);
    if (error) {
        return std::unexpected(Base::fileError(target, error));
    }
    return store;
}

// The state is read and checked before anything is written, so that a database that cannot be
// used stays exactly as it was found.
Result<void> StateStore::load(const fs::path &file)
{
    KEST_CHECK(refuseNewerFile());
    KEST_TRY(std::optional<NativeState> stored, readState(m_database));
    NativeState next = stored ? *stored : defaultNativeState();
    const bool hasNewTools = ToolRegistry::appendMissing(next.order);
    if (stored && hasNewTools) {
        next.revision = nextRevision(*stored);
    }
    KEST_CHECK(validate(next));
    KEST_CHECK(m_database.runScript(kSchema));
    KEST_CHECK(migrateCompanion(m_database, file, stored));
    KEST_CHECK(loadCompanion());
    if (!stored || hasNewTools) {
        KEST_TRY(const std::string_view body, m_encoder.encode(next));
        KEST_CHECK(m_database.transaction([&] { return m_database.run(kWriteState, {body}); }));
    }
    m_state = std::move(next);
    return {};
}

// What a newer build wrote may hold what this one would lose on its first write.
Result<void> StateStore::refuseNewerFile()
{
    KEST_TRY(const auto rows, m_database.query("PRAGMA user_version"));
    const std::string_view version = rows.empty() ? "0" : rows.front().view();
    if (version != "0" && version != kSchemaVersion) {
        return std::unexpected(KestError::unavailable(
            "The local data was saved by a newer Velvetnook and was left as it is"));
    }
    return {};
}

Result<void> StateStore::loadCompanion()
{
    m_companion = defaultCompanionState();
    return m_database.forEachRow(kReadCompanion, {}, [&](const auto &row) -> Result<void> {
        KEST_TRY(m_companion, readStoredCompanion(row));
        return {};
    });
}

void StateStore::leaveClipboardOnDisk()
{
    m_leavesClipboard = true;
    m_recordsVersion.clear(); // what was read before may hold them
}

Result<Snapshot> StateStore::snapshot()
{
    KEST_TRY(const bool isFresh, hasFreshRecords());
    if (!isFresh) {
        KEST_CHECK(readRecords());
    }
    return currentSnapshot();
}

Result<bool> StateStore::hasFreshRecords()
{
    if (m_recordsVersion.empty()) {
        return false; // nothing was read, so there is nothing to ask about
    }
    KEST_TRY(const std::string version, m_database.dataVersion());
    return version == m_recordsVersion;
}

Result<void> StateStore::readRecords()
{
    KEST_TRY(std::string version, m_database.dataVersion());
    RecordList records;
    const std::string_view sql = m_leavesClipboard ? kReadAllButClipboard : kReadRecords;
    KEST_CHECK(m_database.forEachRow(sql, {}, [&](const auto &row) -> Result<void> {
        KEST_TRY(auto record, decodeLocalRecord(row));
        records.push_back(std::make_shared<const LocalRecord>(std::move(record)));
        return {};
    }));
    m_records = Base::SharedList<RecordRef>{std::move(records)};
    m_recordsVersion = std::move(version);
    return {};
}

Snapshot StateStore::currentSnapshot() const
{
    return {.companion = m_companion, .state = m_state, .records = m_records};
}

Result<void> StateStore::commit(NativeState next, const Write &alsoWrite,
                                const RecordEdit &edit, Records records)
{
    next.revision = nextRevision(m_state);
    KEST_CHECK(validate(next));
    KEST_TRY(const std::string_view body, m_encoder.encode(next));
    bool hadRecords = false;
    const auto outcome = m_database.transaction([&]() -> Result<void> {
        KEST_TRY(hadRecords, hasFreshRecords());
        KEST_CHECK(alsoWrite());
        KEST_CHECK(m_database.run(kWriteState, {body}));
        // Read before the commit: a row that does not decode must fail the change itself,
        // not the answer after it.
        return records == Records::readForSnapshot && !hadRecords ? readRecords()
                                                                  : Result<void>{};
    });
    if (!outcome) {
        if (!hadRecords) {
            m_recordsVersion.clear(); // what was read belongs to a change that is undone
        }
        return outcome;
    }
    m_state = std::move(next);
    if (hadRecords && edit) {
        RecordList edited = m_records.items();
        edit(edited);
        if (m_leavesClipboard) {
            std::erase_if(
                edited, [](const RecordRef &record) { return record->kind == kClipboardKind; });
        }
        m_records = Base::SharedList<RecordRef>{std::move(edited)};
    }
    return {};
}

Result<Snapshot> StateStore::commitForSnapshot(NativeState next, const Write &alsoWrite,
                                               const RecordEdit &edit)
{
    KEST_CHECK(commit(std::move(next), alsoWrite, edit, Records::readForSnapshot));
    return currentSnapshot();
}

Result<Snapshot> StateStore::update(const StateMutation &mutation)
{
    NativeState next = m_state;
    KEST_CHECK(mutation(next));
    return commitForSnapshot(std::move(next), writeNothingElse, {});
}

Result<void> StateStore::change(const StateMutation &mutation)
{
    NativeState next = m_state;
    KEST_CHECK(mutation(next));
    return commit(std::move(next), writeNothingElse, {}, Records::asTheyAre);
}

Result<Snapshot> StateStore::migrateLegacy(std::string_view document)
{
    if (m_state.migrated) {
        return snapshot();
    }
    KEST_TRY(auto legacy, decodeDevotionalState(json::PaddedText{document}));
    NativeState next = m_state;
    next.migrated = true;
    next.devotional = std::move(legacy);
    next.devotional.migrated = true;
    next.devotional.mode = "pinned";
    next.devotional.presentation = false;
    const auto &devotional = next.devotional;
    next.pin = {.tool = devotional.tab,
                .item = devotional.tab == "names" ? devotional.selectedNameId
                                                  : devotional.selectedDhikrId};
    return commitForSnapshot(std::move(next), writeNothingElse, {});
}

Result<Snapshot> StateStore::saveCompanion(CompanionState companion)
{
    KEST_CHECK(validate(companion));
    KEST_TRY(const std::string body, json::encode(companion));
    KEST_CHECK(commit(
        m_state, [&] { return m_database.run(kWriteCompanion, {body}); }, {},
        Records::readForSnapshot));
    m_companion = std::move(companion);
    return currentSnapshot();
}

Result<Snapshot> StateStore::clearHistory()
{
    NativeState next = m_state;
    next.devotional.records = {};
    return commitForSnapshot(
        std::move(next), [&] { return m_database.run(kClearHistory); },
        [](RecordList &records) {
            std::erase_if(records, [](const RecordRef &record) {
                return std::ranges::find(kHistoryKinds, record->kind) != kHistoryKinds.end();
            });
        });
}

Result<Snapshot> StateStore::resetAll()
{
    CompanionState companion = defaultCompanionState();
    KEST_TRY(const std::string body, json::encode(companion));
    NativeState next = m_state;
    next.devotional = defaultDevotionalState();
    KEST_CHECK(commit(
        std::move(next),
        [&]() -> Result<void> {
            KEST_CHECK(m_database.run(kClearRecords));
            return m_database.run(kWriteCompanion, {body});
        },
        [](RecordList &records) { records.clear(); }, Records::readForSnapshot));
    m_companion = std::move(companion);
    return currentSnapshot();
}

Result<std::string> StateStore::checkIntegrity()
{
    KEST_TRY(const auto rows, m_database.query("PRAGMA integrity_check"));
    return rows.empty() ? std::string{"no answer"} : std::string{rows.front().view()};
}

} // namespace KestCore
