// SPDX-FileCopyrightText: 2026 The Velvetnook developers
// SPDX-License-Identifier: MIT
#include "KestCore/Store/StateStore.h"

#include <algorithm>
#include <optional>

// How the store reads and changes single records; the rest of it is in StateStore.cpp.
namespace KestCore
{

namespace
{

constexpr std::string_view kReadRecord = "SELECT body FROM records WHERE id=CAST(? AS TEXT)";
constexpr std::string_view kReadRecordsOfKind =
    "SELECT body FROM records WHERE kind=CAST(? AS TEXT) ORDER BY rowid";
constexpr std::string_view kReadIdsOfKind =
    "SELECT id FROM records WHERE kind=CAST(? AS TEXT) ORDER BY rowid";
constexpr std::string_view kReadRecordsBetween =
    "SELECT body FROM records WHERE id>=CAST(? AS TEXT) AND id<CAST(? AS TEXT) ORDER BY rowid";
constexpr std::string_view kUpsertRecord =
    "INSERT INTO records(id,kind,body) VALUES(CAST(? AS TEXT),CAST(? AS TEXT),?) ON "
    "CONFLICT(id) DO UPDATE SET kind=excluded.kind,body=excluded.body";
constexpr std::string_view kDeleteRecord = "DELETE FROM records WHERE id=CAST(? AS TEXT)";

void putRecord(std::vector<RecordRef> &records, const LocalRecord &record)
{
    auto shared = std::make_shared<const LocalRecord>(record);
    const auto place = std::ranges::find(
        records, record.id, [](const RecordRef &r) -> const std::string & { return r->id; });
    if (place == records.end()) {
        records.push_back(std::move(shared));
    } else {
        *place = std::move(shared);
    }
}

} // namespace

Result<Snapshot> StateStore::upsertRecord(const LocalRecord &record)
{
    KEST_CHECK(validate(record));
    KEST_TRY(const std::string body, json::encode(record));
    return commitForSnapshot(
        m_state, [&] { return m_database.run(kUpsertRecord, {record.id, record.kind, body}); },
        [&](RecordList &records) { putRecord(records, record); });
}

Result<void> StateStore::changeRecords(const RecordChanges &changes)
{
    std::vector<std::string> bodies;
    for (const LocalRecord &record : changes.written) {
        KEST_CHECK(validate(record));
        KEST_TRY(std::string body, json::encode(record));
        bodies.push_back(std::move(body));
    }
    const auto write = [&]() -> Result<void> {
        for (const std::string &id : changes.removed) {
            KEST_CHECK(m_database.run(kDeleteRecord, {id}));
        }
        for (std::size_t i = 0; i < bodies.size(); ++i) {
            const LocalRecord &record = changes.written[i];
            KEST_CHECK(m_database.run(kUpsertRecord, {record.id, record.kind, bodies[i]}));
        }
        return {};
    };
    const auto edit = [&](RecordList &records) {
        std::erase_if(records, [&](const RecordRef &record) {
            return std::ranges::find(changes.removed, record->id) != changes.removed.end();
        });
        for (const LocalRecord &record : changes.written) {
            putRecord(records, record);
        }
    };
    return commit(m_state, write, edit, Records::asTheyAre);
}

Result<std::vector<LocalRecord>>
StateStore::selectRecords(std::string_view sql, Base::Database::Parameters parameters)
{
    std::vector<LocalRecord> records;
    KEST_CHECK(m_database.forEachRow(sql, parameters, [&](const auto &row) -> Result<void> {
        KEST_TRY(auto record, decodeLocalRecord(row));
        records.push_back(std::move(record));
        return {};
    }));
    return records;
}

Result<std::vector<LocalRecord>> StateStore::recordsOfKind(std::string_view kind)
{
    return selectRecords(kReadRecordsOfKind, {kind});
}

Result<std::vector<std::string>> StateStore::recordIdsOfKind(std::string_view kind)
{
    std::vector<std::string> ids;
    KEST_CHECK(m_database.forEachRow(kReadIdsOfKind, {kind}, [&](const auto &row) {
        ids.emplace_back(row.view());
        return Result<void>{};
    }));
    return ids;
}

Result<std::vector<LocalRecord>> StateStore::recordsWithIdPrefix(std::string_view prefix)
{
    std::string end{prefix};
    ++end.back();
    return selectRecords(kReadRecordsBetween, {prefix, end});
}

Result<std::optional<LocalRecord>> StateStore::record(std::string_view id)
{
    KEST_TRY(auto found, selectRecords(kReadRecord, {id}));
    return found.empty() ? std::nullopt : std::optional{std::move(found.front())};
}

Result<Snapshot> StateStore::deleteRecord(std::string_view id)
{
    return commitForSnapshot(
        m_state, [&] { return m_database.run(kDeleteRecord, {id}); },
        [&](RecordList &records) {
            std::erase_if(records, [&](const RecordRef &record) { return record->id == id; });
        });
}

Result<Snapshot> StateStore::updateRecord(std::string_view id, const RecordMutation &mutation)
{
    KEST_TRY(auto found, record(id));
    if (!found) {
        return std::unexpected(removedItem());
    }
    KEST_CHECK(mutation(*found));
    if (found->id != id) {
        return std::unexpected(KestError::invalidData("Cannot change an item's identity."));
    }
    return upsertRecord(*found);
}

} // namespace KestCore
